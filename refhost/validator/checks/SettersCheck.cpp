#include "refhost/validator/checks/SettersCheck.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/OddValues.h"
#include "refhost/validator/OperationClass.h"

#include "Operation.h"

namespace {

/// The value as a detail shows it.
QString shown(const QVariant &value)
{
    constexpr int mostUnits = 40;
    const QString text = jsonText(variantToJson(value));
    return text.size() <= mostUnits ? text : text.left(mostUnits) + QStringLiteral("...");
}

/// Writes odd values until one does not come back as it was.
void checkProperty(const QString &name, Operation &operation, const QMetaProperty &property,
                   CheckContext &context, Outcome &outcome)
{
    const QList<QVariant> values = oddValues(property);
    for (const QVariant &value : values) {
        const QString place =
            QStringLiteral("%1: %2 = %3").arg(name, nameOf(property), shown(value));
        context.doing(place);
        if (!property.write(&operation, value)) {
            outcome.fail(place + QStringLiteral(": not written"));
            return;
        }
        const QVariant found = property.read(&operation);
        if (found != value) {
            outcome.fail(QStringLiteral("%1: gives back %2").arg(place, shown(found)));
            return;
        }
    }
}

} // namespace

SettersCheck::SettersCheck()
    : Check({QStringLiteral("schema.setters"), 3,
             QStringLiteral("A property gives back exactly what was written, however odd.")})
{
}

Outcome SettersCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (Operation *prototype : prototypes) {
        const QString name = context.nameOf(*prototype);
        const OperationClass declared(*prototype);
        for (const QMetaProperty &property : declared.properties()) {
            // Another check tells of properties that cannot be read or written at all.
            if (property.isReadable() && property.isWritable())
                checkProperty(name, *prototype, property, context, outcome);
        }
    }
    return outcome;
}
