#pragma once

#include "refhost/engine/Result.h"

#include <QJsonObject>
#include <QString>

class Operation;
class OperationCatalog;
class Task;

/// The task in the form that `TaskReader` reads. Properties at their defaults are left out.
QJsonObject taskToJson(const Task &task, const OperationCatalog &catalog);

/// One step in that form.
QJsonObject stepToJson(const Operation &step, const OperationCatalog &catalog);
