#include "refhost/validator/checks/KeysCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/OperationClass.h"

#include "Operation.h"

namespace {

/// The entries that could be there, in the order in which they have to stand.
QStringList orderedNames(const OperationClass &declared)
{
    QStringList names;
    for (const QMetaProperty &property : declared.properties()) {
        for (const QString &key : OperationClass::keys())
            names.append(key + QLatin1Char('_') + nameOf(property));
    }
    return names;
}

void checkLabels(const QString &name, const OperationClass &declared, Outcome &outcome)
{
    for (const QMetaProperty &property : declared.properties()) {
        const auto label = declared.value(QStringLiteral("prop"), nameOf(property));
        if (!label) {
            outcome.fail(
                QStringLiteral("%1: property %2 has no label prop_%2").arg(name, nameOf(property)));
        } else if (label->trimmed().isEmpty()) {
            outcome.fail(
                QStringLiteral("%1: prop_%2: the label is empty").arg(name, nameOf(property)));
        }
    }
}

void checkNames(const QString &name, const OperationClass &declared, Outcome &outcome)
{
    QStringList seen;
    for (const Annotation &annotation : declared.annotations()) {
        if (annotation.key.isEmpty()) {
            outcome.fail(
                QStringLiteral("%1: %2: no such key; expected %3 and the property")
                    .arg(name, annotation.name,
                         OperationClass::keys().join(QLatin1String("_, ")) + QLatin1Char('_')));
        } else if (!declared.hasProperty(annotation.property)) {
            outcome.fail(QStringLiteral("%1: %2: there is no property \"%3\"")
                             .arg(name, annotation.name, annotation.property));
        } else if (seen.contains(annotation.name)) {
            outcome.fail(QStringLiteral("%1: %2: stands twice").arg(name, annotation.name));
        }
        seen.append(annotation.name);
    }
}

void checkOrder(const QString &name, const OperationClass &declared, Outcome &outcome)
{
    const QStringList ordered = orderedNames(declared);
    int last = -1;
    for (const Annotation &annotation : declared.annotations()) {
        const int place = ordered.indexOf(annotation.name);
        if (place < 0)
            continue;
        if (place < last) {
            outcome.fail(QStringLiteral("%1: %2: stands behind %3; expected the order of the "
                                        "properties, in each %4")
                             .arg(name, annotation.name, ordered.at(last),
                                  OperationClass::keys().join(QLatin1String(", "))));
            return;
        }
        last = place;
    }
}

} // namespace

KeysCheck::KeysCheck()
    : Check({QStringLiteral("schema.keys"), 3,
             QStringLiteral("Class info labels each property, with known keys in their order.")})
{
}

Outcome KeysCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> prototypes = context.newPrototypes();
    for (const Operation *prototype : prototypes) {
        const QString name = context.nameOf(*prototype);
        const OperationClass declared(*prototype);
        checkLabels(name, declared, outcome);
        checkNames(name, declared, outcome);
        checkOrder(name, declared, outcome);
    }
    return outcome;
}
