#include "refhost/validator/checks/ChoicesCheck.h"

#include "refhost/validator/OperationClass.h"

namespace {

void checkLabels(const QString &place, const QStringList &labels, Outcome &outcome)
{
    if (labels.size() < 2)
        outcome.warn(place + QStringLiteral(": only one choice"));
    for (int i = 0; i < labels.size(); ++i) {
        const QString &label = labels.at(i);
        const QString number = QStringLiteral("%1: label %2").arg(place).arg(i);
        if (label.trimmed().isEmpty())
            outcome.fail(number + QStringLiteral(" is empty"));
        else if (label != label.trimmed())
            outcome.fail(QStringLiteral("%1, \"%2\", has spaces around it").arg(number, label));
        else if (labels.indexOf(label) < i)
            outcome.fail(QStringLiteral("%1, \"%2\", stands there twice").arg(number, label));
    }
}

} // namespace

ChoicesCheck::ChoicesCheck()
    : PropertyCheck(
          {QStringLiteral("schema.choices"), 3,
           QStringLiteral("COMBO properties, and no others, have choice lists of clean labels.")})
{
}

void ChoicesCheck::examine(const QString &name, const OperationClass &declared,
                           const QMetaProperty &property, Outcome &outcome) const
{
    if (declared.hasUnknownEditor(property))
        return;
    const bool isCombo = declared.editor(property) == QLatin1String("COMBO");
    const auto choices = declared.value(QStringLiteral("choices"), nameOf(property));
    const QString place = QStringLiteral("%1: choices_%2").arg(name, nameOf(property));
    if (isCombo && !choices) {
        outcome.fail(place + QStringLiteral(": missing; expected labels for the editor COMBO"));
    } else if (!isCombo && choices) {
        outcome.fail(QStringLiteral("%1: \"%2\"; expected none for the editor \"%3\"")
                         .arg(place, *choices, declared.editor(property)));
    } else if (isCombo) {
        checkLabels(place, declared.choices(nameOf(property)), outcome);
    }
}
