#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/Result.h"

#include <QByteArray>

class Operation;
class OperationCatalog;
class Task;

/// The task in the form that `TaskReader` reads, its variables in their order. Properties that are
/// exactly at their defaults are left out.
JsonObject taskToJson(const Task &task, const OperationCatalog &catalog);

/// One step in that form, its keys in ascending order.
JsonObject stepToJson(const Operation &step, const OperationCatalog &catalog);

/// The text of a JSON task that reads back as the very same task, but for the host's own state of
/// the steps, of which JSON tasks know nothing. The problem tells the first thing that JSON does
/// not keep, such as a null text or an
/// infinite number in a list.
Result<QByteArray> taskToExactJson(const Task &task, const OperationCatalog &catalog);
