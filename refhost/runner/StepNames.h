#pragma once

#include <QString>
#include <QStringList>

class OperationCatalog;
class Task;

/// Returns the file name, without folders, of the plug-in of each step.
QStringList pluginsOfSteps(const Task &task, const OperationCatalog &catalog);

/// Returns "text.append of libTextOperPlugin.so".
QString stepName(const QString &typeId, const QString &plugin);

/// Returns the names of the steps, by `stepName`.
QStringList stepNames(const Task &task, const QStringList &plugins);

/// Returns the message on a step that threw: "PLACE: steps[3] (NAME): the step failed: it threw
/// ...".
QString failureMessage(const QString &place, int index, const QString &typeId,
                       const QString &plugin, const QString &thrown);
