#include "refhost/validator/checks/PropertiesCheck.h"

#include "refhost/validator/OperationClass.h"

namespace {

bool isStorable(int type)
{
    return type == QMetaType::QString || type == QMetaType::Int || type == QMetaType::Bool ||
           type == QMetaType::Double;
}

/// What in its declaration the host does not expect.
QStringList faultsOf(const QMetaProperty &property)
{
    QStringList faults;
    const auto demand = [&](bool holds, const QString &fault) {
        if (!holds)
            faults.append(fault);
    };
    demand(isStorable(property.userType()),
           QStringLiteral("is of type %1; expected QString, int, bool or double")
               .arg(QString::fromLatin1(property.typeName())));
    demand(property.isReadable(), QStringLiteral("cannot be read"));
    demand(property.isWritable(), QStringLiteral("cannot be written"));
    demand(!property.isWritable() || property.hasStdCppSet(),
           QStringLiteral("is not written by a function named set and the property"));
    demand(!property.isResettable(), QStringLiteral("has a RESET function"));
    demand(!property.hasNotifySignal(), QStringLiteral("has a NOTIFY signal"));
    demand(!property.isConstant(), QStringLiteral("is CONSTANT"));
    demand(!property.isFinal(), QStringLiteral("is FINAL"));
    demand(!property.isRequired(), QStringLiteral("is REQUIRED"));
    demand(!property.isUser(), QStringLiteral("is the USER property"));
    demand(property.isDesignable(), QStringLiteral("is not DESIGNABLE"));
    demand(property.isScriptable(), QStringLiteral("is not SCRIPTABLE"));
    demand(property.isStored(), QStringLiteral("is not STORED"));
    return faults;
}

} // namespace

PropertiesCheck::PropertiesCheck()
    : PropertyCheck(
          {QStringLiteral("schema.properties"), 3,
           QStringLiteral("Properties are declared with READ and WRITE only, of a stored type.")})
{
}

void PropertiesCheck::examine(const QString &name, const OperationClass &,
                              const QMetaProperty &property, Outcome &outcome) const
{
    const QStringList faults = faultsOf(property);
    for (const QString &fault : faults)
        outcome.fail(QStringLiteral("%1: property %2 %3").arg(name, nameOf(property), fault));
}
