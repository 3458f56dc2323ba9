#include "refhost/engine/TaskWriter.h"

#include "refhost/engine/ExactValue.h"
#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyValue.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/TaskDifference.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/VarTypeName.h"

#include "Operation.h"

namespace {

/// The text as `TaskReader` understands it.
Result<Task> readBack(const QByteArray &text, const OperationCatalog &catalog)
{
    const Result<JsonObject> json = parseJsonObject(text, {});
    return json ? TaskReader(catalog).read(json.value()) : json.problem();
}

} // namespace

JsonObject stepToJson(const Operation &step, const OperationCatalog &catalog)
{
    JsonObject json{{QStringLiteral("type"), step.typeId()}};
    const CatalogEntry *const entry = catalog.find(step.typeId());
    const OperationSchema schema(entry ? *entry->prototype : step);
    for (const PropertySchema &property : schema.properties()) {
        const QVariant value = step.property(property.name.toLatin1().constData());
        if (!entry || !isSameValue(value, property.defaultValue))
            json.append(property.name, propertyToJson(value, property));
    }
    json.sort();
    return json;
}

JsonObject taskToJson(const Task &task, const OperationCatalog &catalog)
{
    JsonObject variables;
    for (const TaskVariable &variable : task.variables) {
        JsonObject json{{QStringLiteral("type"), varTypeName(variable.type)}};
        if (variable.value.isValid())
            json.append(QStringLiteral("value"), variantToJson(variable.value));
        variables.append(variable.name, json);
    }
    JsonArray steps;
    for (const auto &step : task.steps)
        steps.append(stepToJson(*step, catalog));
    return {{QStringLiteral("steps"), steps}, {QStringLiteral("variables"), variables}};
}

Result<QByteArray> taskToExactJson(const Task &task, const OperationCatalog &catalog)
{
    const QByteArray text = indentedJson(taskToJson(task, catalog));
    const Result<Task> back = readBack(text, catalog);
    auto problem = back ? lostInJson(task, back.value()) : back.problem();
    if (!problem)
        return text;
    problem->reason = Problem::Reason::BeyondJson;
    return *problem;
}
