#include "refhost/engine/TaskWriter.h"

#include "refhost/engine/ExactValue.h"
#include "refhost/engine/JsonFile.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyValue.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/TaskDifference.h"
#include "refhost/engine/TaskReader.h"
#include "refhost/engine/VarTypeName.h"

#include "Operation.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

/// The text as `TaskReader` understands it.
Result<Task> readBack(const QByteArray &text, const OperationCatalog &catalog)
{
    const Result<QJsonObject> json = parseJsonObject(text, {});
    return json ? TaskReader(catalog).read(json.value()) : json.problem();
}

} // namespace

QJsonObject stepToJson(const Operation &step, const OperationCatalog &catalog)
{
    QJsonObject json{{QStringLiteral("type"), step.typeId()}};
    const CatalogEntry *const entry = catalog.find(step.typeId());
    const OperationSchema schema(entry ? *entry->prototype : step);
    for (const PropertySchema &property : schema.properties()) {
        const QVariant value = step.property(property.name.toLatin1().constData());
        if (!entry || !isSameValue(value, property.defaultValue))
            json.insert(property.name, propertyToJson(value, property));
    }
    return json;
}

QJsonObject taskToJson(const Task &task, const OperationCatalog &catalog)
{
    QJsonObject variables;
    for (const TaskVariable &variable : task.variables) {
        QJsonObject json{{QStringLiteral("type"), varTypeName(variable.type)}};
        if (variable.value.isValid())
            json.insert(QStringLiteral("value"), variantToJson(variable.value));
        variables.insert(variable.name, json);
    }
    QJsonArray steps;
    for (const auto &step : task.steps)
        steps.append(stepToJson(*step, catalog));
    return {{QStringLiteral("variables"), variables}, {QStringLiteral("steps"), steps}};
}

Result<QByteArray> taskToExactJson(const Task &task, const OperationCatalog &catalog)
{
    QByteArray text = QJsonDocument(taskToJson(task, catalog)).toJson(QJsonDocument::Indented);
    // Qt's parser takes this character for a byte order mark where a text begins with it.
    text.replace("\xEF\xBB\xBF", "\\ufeff");
    const Result<Task> back = readBack(text, catalog);
    auto problem = back ? lostInJson(task, back.value()) : back.problem();
    if (!problem)
        return text;
    problem->reason = Problem::Reason::BeyondJson;
    return *problem;
}
