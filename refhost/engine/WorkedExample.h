#pragma once

#include "refhost/engine/JsonTypes.h"
#include "refhost/engine/Result.h"

#include <QString>
#include <QStringList>

#include <optional>

class OperationCatalog;
class OperationSchema;

/// One run of an operation that shows what it does, and what has to come out.
struct WorkedExample
{
    QString name;
    JsonObject variables; ///< as in a task
    JsonObject settings;  ///< as in a task, less the type; the result goes into "result"
    QString into;         ///< the type of the variable "result"
    JsonValue result;     ///< undefined when nothing is written
    QStringList warnings;
};

/// What an example gives, or has to give.
struct ExampleOutcome
{
    JsonValue result; ///< what was written to "result", undefined when nothing was
    QStringList warnings;
    QStringList others;             ///< the other variables that were written; an example has none
    std::optional<QString> failure; ///< what the step threw, which no example has
};

/// Runs an example of the operation `typeId` as a task of one step. A problem says what about its
/// variables or settings does not fit the operation.
Result<ExampleOutcome> runExample(const WorkedExample &example, const QString &typeId,
                                  const OperationCatalog &catalog);

/// The names of the example's settings in the order of the properties.
QStringList settingNames(const WorkedExample &example, const OperationSchema &schema);
