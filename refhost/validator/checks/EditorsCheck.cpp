#include "refhost/validator/checks/EditorsCheck.h"

#include "refhost/validator/OperationClass.h"

namespace {

/// What is wrong with the editor of a property, empty when nothing is.
QString editorFault(const OperationClass &declared, const QMetaProperty &property)
{
    const auto editor = declared.value(QStringLiteral("editor"), nameOf(property));
    const QStringList fitting = OperationClass::editorsFor(property.userType());
    const QString type = QString::fromLatin1(property.typeName());
    if (editor && fitting.isEmpty())
        return QStringLiteral("\"%1\"; expected no editor for the type %2").arg(*editor, type);
    if (!editor && !fitting.isEmpty()) {
        return QStringLiteral("missing; expected %1 for the type %2")
            .arg(fitting.join(QLatin1String(", ")), type);
    }
    if (editor && !fitting.contains(*editor)) {
        return QStringLiteral("\"%1\"; expected %2 for the type %3")
            .arg(*editor, fitting.join(QLatin1String(", ")), type);
    }
    return {};
}

} // namespace

EditorsCheck::EditorsCheck()
    : PropertyCheck({QStringLiteral("schema.editors"), 3,
                     QStringLiteral("Editor words are known and fit the type of their property.")})
{
}

void EditorsCheck::examine(const QString &name, const OperationClass &declared,
                           const QMetaProperty &property, Outcome &outcome) const
{
    const QString fault = editorFault(declared, property);
    if (!fault.isEmpty())
        outcome.fail(QStringLiteral("%1: editor_%2: %3").arg(name, nameOf(property), fault));
}
