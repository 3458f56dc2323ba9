#include "refhost/workbench/steps/UsedVariables.h"

#include "refhost/engine/OperandText.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"

#include "Operation.h"

#include <QHash>

namespace {

/// The name of the variable that a property of that role names, empty when it names none.
QString namedVariable(PropertyRole role, const QString &text)
{
    switch (role) {
    case PropertyRole::Text:
    case PropertyRole::Number:
        return readOperand(text).name;
    case PropertyRole::Input:
    case PropertyRole::Result:
        return text;
    case PropertyRole::Other:
        break;
    }
    return {};
}

} // namespace

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
        for (const PropertySchema &property : qAsConst(schemas)[typeId]) {
            const QVariant value = operation.property(property.name.toUtf8().constData());
            names.insert(namedVariable(roleOf(property), value.toString()));
        }
    }
    names.remove({});
    return names;
}
