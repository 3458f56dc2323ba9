#include "refhost/engine/TaskWriter.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyValue.h"
#include "refhost/engine/Task.h"
#include "refhost/engine/VarTypeName.h"

#include "Operation.h"

#include <QJsonArray>

QJsonObject stepToJson(const Operation &step, const OperationCatalog &catalog)
{
    QJsonObject json{{QStringLiteral("type"), step.typeId()}};
    const CatalogEntry *const entry = catalog.find(step.typeId());
    const OperationSchema schema(entry ? *entry->prototype : step);
    for (const PropertySchema &property : schema.properties()) {
        const QVariant value = step.property(property.name.toLatin1().constData());
        if (!entry || value != property.defaultValue)
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
