#include "refhost/workbench/document/VariableUses.h"

#include "refhost/engine/OperandText.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"

#include "Operation.h"

#include <QHash>

namespace {

QVariant valueOf(const Operation &step, const PropertySchema &property)
{
    return step.property(property.name.toUtf8().constData());
}

std::optional<QString> referredVariable(const QString &text)
{
    const OperandText operand = readOperand(text);
    return operand.isReference ? std::optional<QString>(operand.name) : std::nullopt;
}

} // namespace

std::optional<QString> namedVariable(const PropertySchema &property, const QVariant &value)
{
    if (value.userType() != QMetaType::QString)
        return std::nullopt;
    switch (roleOf(property)) {
    case PropertyRole::Text:
    case PropertyRole::Number:
        return referredVariable(value.toString());
    case PropertyRole::Input:
    case PropertyRole::Result:
        return value.toString();
    case PropertyRole::Other:
        break;
    }
    return std::nullopt;
}

QVector<VariableUse> variableUses(const TaskState &state, const QString &name)
{
    QVector<VariableUse> uses;
    for (const StepState &step : state.steps) {
        const OperationSchema schema(*step.operation);
        for (const PropertySchema &property : schema.properties()) {
            if (namedVariable(property, valueOf(*step.operation, property)) == name)
                uses.append({step.id, property.name});
        }
    }
    return uses;
}

QSet<QString> usedVariables(const QVector<StepState> &steps, const OperationCatalog &catalog)
{
    // Reading annotations takes its time, and many steps are of few kinds.
    QHash<QString, QList<PropertySchema>> schemas;
    QSet<QString> names;
    for (const StepState &step : steps) {
        const Operation &operation = *step.operation;
        const QString typeId = operation.typeId();
        if (!schemas.contains(typeId)) {
            const CatalogEntry *const entry = catalog.find(typeId);
            schemas.insert(typeId,
                           OperationSchema(entry ? *entry->prototype : operation).properties());
        }
        for (const PropertySchema &property : qAsConst(schemas)[typeId])
            names.insert(namedVariable(property, valueOf(operation, property)).value_or(QString()));
    }
    names.remove({});
    return names;
}
