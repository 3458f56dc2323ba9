#include "refhost/validator/checks/DefaultsCheck.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/validator/CheckContext.h"
#include "refhost/validator/OperationClass.h"

#include "Operation.h"

#include <algorithm>

namespace {

void checkModes(const QString &name, const Operation &operation, const OperationClass &declared,
                Outcome &outcome)
{
    for (const QMetaProperty &property : declared.properties()) {
        const int choices = declared.choices(nameOf(property)).size();
        const QVariant value = property.read(&operation);
        if (choices == 0 || value.userType() != QMetaType::Int)
            continue;
        if (value.toInt() < 0 || value.toInt() >= choices) {
            outcome.fail(QStringLiteral("%1: %2 is %3 in a fresh object; expected 0 to %4")
                             .arg(name, nameOf(property))
                             .arg(value.toInt())
                             .arg(choices - 1));
        }
    }
}

/// Compares a fresh object with another that should have the same values.
void compare(const QString &name, const Operation &fresh, const Operation &other,
             const QString &otherName, Outcome &outcome)
{
    const OperationClass declared(fresh);
    for (const QMetaProperty &property : declared.properties()) {
        const QVariant expected = property.read(&fresh);
        const QVariant found = other.property(property.name());
        if (found != expected) {
            outcome.fail(QStringLiteral("%1: %2 is %3 in a fresh object, but %4 in %5")
                             .arg(name, nameOf(property), jsonText(variantToJson(expected)),
                                  jsonText(variantToJson(found)), otherName));
        }
    }
}

} // namespace

DefaultsCheck::DefaultsCheck()
    : Check({QStringLiteral("schema.defaults"), 3,
             QStringLiteral("Defaults are choices that exist, and the same in each fresh object.")})
{
}

Outcome DefaultsCheck::run(CheckContext &context) const
{
    Outcome outcome;
    const QList<Operation *> first = context.newPrototypes();
    const QList<Operation *> second = context.newPrototypes();
    for (int i = 0; i < first.size(); ++i) {
        const Operation &fresh = *first.at(i);
        const QString name = context.nameOf(fresh);
        checkModes(name, fresh, OperationClass(fresh), outcome);
        if (i < second.size())
            compare(name, fresh, *second.at(i), QStringLiteral("the next one"), outcome);
        context.doing(name + QStringLiteral(": clone"));
        if (const Operation *const copy = fresh.clone(nullptr))
            compare(name, fresh, *copy, QStringLiteral("its clone"), outcome);
    }
    return outcome;
}
