#include "refhost/engine/WorkedExample.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/TaskRunner.h"

#include "Operation.h"

namespace {

QString resultName()
{
    return QStringLiteral("result");
}

JsonObject taskOf(const WorkedExample &example, const QString &typeId)
{
    JsonObject variables = example.variables;
    variables.insert(resultName(), JsonObject{{QStringLiteral("type"), example.into}});
    JsonObject step = example.settings;
    step.insert(QStringLiteral("type"), typeId);
    const QString resultVar = QStringLiteral("resultVar");
    if (!step.contains(resultVar))
        step.insert(resultVar, resultName());
    return {{QStringLiteral("variables"), variables}, {QStringLiteral("steps"), JsonArray{step}}};
}

} // namespace

Result<ExampleOutcome> runExample(const WorkedExample &example, const QString &typeId,
                                  const OperationCatalog &catalog)
{
    const Result<Task> task = TaskReader(catalog).read(taskOf(example, typeId));
    if (!task)
        return task.problem();
    VariableScope scope = task.value().startScope();
    ExampleOutcome outcome{JsonValue(), {}, {}, {}};
    runTask(task.value(), scope, [&](const StepReport &report) {
        outcome.warnings = report.warnings;
        outcome.failure = report.failure;
        outcome.others = report.written;
        if (outcome.others.removeOne(resultName()))
            outcome.result = variantToJson(scope.get(resultName()));
    });
    return outcome;
}

QStringList settingNames(const WorkedExample &example, const OperationSchema &schema)
{
    QStringList names;
    const QStringList properties = schema.propertyNames();
    for (const QString &name : properties) {
        if (example.settings.contains(name))
            names.append(name);
    }
    return names;
}
