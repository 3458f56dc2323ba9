#pragma once

#include "refhost/engine/Result.h"

#include <QByteArray>
#include <QJsonObject>

class Operation;
class OperationCatalog;
class Task;

/// The task in the form that `TaskReader` reads. Properties that are exactly at their defaults are
/// left out.
QJsonObject taskToJson(const Task &task, const OperationCatalog &catalog);

/// One step in that form.
QJsonObject stepToJson(const Operation &step, const OperationCatalog &catalog);

/// The text of a JSON task that reads back as the very same task, but for the host's own state of
/// the steps, of which JSON tasks know nothing. The problem tells the first thing that JSON does
/// not keep, such as a null text or a number of more than 53 bits.
Result<QByteArray> taskToExactJson(const Task &task, const OperationCatalog &catalog);
