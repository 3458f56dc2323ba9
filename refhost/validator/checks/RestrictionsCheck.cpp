#include "refhost/validator/checks/RestrictionsCheck.h"

#include "refhost/engine/VarTypeName.h"
#include "refhost/validator/OperationClass.h"

namespace {

const QString varRefKind = QStringLiteral("varref_kind");
const QString varRefType = QStringLiteral("varref_type");
const QString varNameType = QStringLiteral("varname_type");

/// The keys of which one has to be there for an editor.
QStringList keysFor(const QString &editor)
{
    if (editor == QLatin1String("VARREF"))
        return {varRefKind, varRefType};
    if (editor.startsWith(QLatin1String("VARNAME:")))
        return {varNameType};
    return {};
}

/// What is wrong with the value of a key, empty when nothing is.
QString valueFault(const QString &key, const QString &value, const QString &editor)
{
    if (key == varNameType) {
        const QString expected = editor.section(QLatin1Char(':'), 1).toLower();
        return value == expected ? QString()
                                 : QStringLiteral("\"%1\"; expected \"%2\" for the editor %3")
                                       .arg(value, expected, editor);
    }
    const QStringList known = varTypeNames() << QStringLiteral("scalar");
    const QStringList words =
        key == varRefType ? value.split(QLatin1Char(',')) : QStringList(value);
    for (const QString &word : words) {
        if (!known.contains(word)) {
            return QStringLiteral("\"%1\": unknown word \"%2\"; expected %3, separated by commas "
                                  "without spaces")
                .arg(value, word, known.join(QLatin1String(", ")));
        }
    }
    return {};
}

} // namespace

RestrictionsCheck::RestrictionsCheck()
    : PropertyCheck({QStringLiteral("schema.restrictions"), 3,
                     QStringLiteral("Each editor has the restriction it needs, and no other.")})
{
}

void RestrictionsCheck::examine(const QString &name, const OperationClass &declared,
                                const QMetaProperty &property, Outcome &outcome) const
{
    if (declared.hasUnknownEditor(property))
        return;
    const QString editor = declared.editor(property);
    const QStringList needed = keysFor(editor);
    int present = 0;
    for (const QString &key : {varRefKind, varRefType, varNameType}) {
        const auto value = declared.value(key, nameOf(property));
        if (!value)
            continue;
        const QString place = QStringLiteral("%1: %2_%3").arg(name, key, nameOf(property));
        if (!needed.contains(key)) {
            outcome.fail(QStringLiteral("%1: \"%2\"; expected none for the editor \"%3\"")
                             .arg(place, *value, editor));
            continue;
        }
        ++present;
        const QString fault = valueFault(key, *value, editor);
        if (!fault.isEmpty())
            outcome.fail(QStringLiteral("%1: %2").arg(place, fault));
    }
    if (!needed.isEmpty() && present != 1) {
        outcome.fail(QStringLiteral("%1: property %2 has the editor %3 and %4 of %5; expected one")
                         .arg(name, nameOf(property), editor,
                              present == 0 ? QStringLiteral("none") : QStringLiteral("both"),
                              needed.join(QLatin1String(", "))));
    }
}
