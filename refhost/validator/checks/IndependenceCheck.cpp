#include "refhost/validator/checks/IndependenceCheck.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/OddValues.h"
#include "refhost/validator/OperationClass.h"

#include "Operation.h"

namespace {

QList<QVariant> valuesOf(const Operation &operation, const OperationClass &declared)
{
    QList<QVariant> values;
    for (const QMetaProperty &property : declared.properties())
        values.append(property.read(&operation));
    return values;
}

/// Writes all odd values to the property at `index`, and looks at the others each time.
void checkProperty(const QString &name, Operation &operation, const OperationClass &declared,
                   int index, CheckContext &context, Outcome &outcome)
{
    const QList<QMetaProperty> &properties = declared.properties();
    const QMetaProperty &written = properties.at(index);
    const QList<QVariant> before = valuesOf(operation, declared);
    const QList<QVariant> values = oddValues(written);
    for (const QVariant &value : values) {
        const QString text = jsonText(variantToJson(value)).left(40);
        context.doing(QStringLiteral("%1: %2 = %3").arg(name, nameOf(written), text));
        written.write(&operation, value);
        const QList<QVariant> after = valuesOf(operation, declared);
        for (int other = 0; other < properties.size(); ++other) {
            if (other == index || after.at(other) == before.at(other))
                continue;
            outcome.fail(QStringLiteral("%1: %2 = %3: changes %4 from %5 to %6")
                             .arg(name, nameOf(written), text, nameOf(properties.at(other)),
                                  jsonText(variantToJson(before.at(other))),
                                  jsonText(variantToJson(after.at(other)))));
            return;
        }
    }
}

} // namespace

IndependenceCheck::IndependenceCheck()
    : Check({QStringLiteral("schema.independence"), 3,
             QStringLiteral("Writing one property changes no other.")})
{
}

Outcome IndependenceCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (Operation *prototype : prototypes) {
        const QString name = context.nameOf(*prototype);
        const OperationClass declared(*prototype);
        for (int i = 0; i < declared.properties().size(); ++i)
            checkProperty(name, *prototype, declared, i, context, outcome);
    }
    return outcome;
}
