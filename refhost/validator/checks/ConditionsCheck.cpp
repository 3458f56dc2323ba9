#include "refhost/validator/checks/ConditionsCheck.h"

#include "refhost/validator/OperationClass.h"

#include <QRegularExpression>

namespace {

/// A condition "decider=1|2", taken apart.
struct Condition
{
    QString decider;
    QStringList values;
};

std::optional<Condition> readCondition(const QString &text)
{
    static const QRegularExpression grammar(
        QStringLiteral("^([A-Za-z_][A-Za-z0-9_]*)=([0-9]+(\\|[0-9]+)*)$"));
    const QRegularExpressionMatch match = grammar.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return Condition{match.captured(1), match.captured(2).split(QLatin1Char('|'))};
}

void checkValues(const QString &place, const Condition &condition, int choiceCount,
                 Outcome &outcome)
{
    QStringList seen;
    for (const QString &value : condition.values) {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (!isNumber || number >= choiceCount) {
            outcome.fail(
                QStringLiteral("%1: value %2; expected 0 to %3, the choices of %4")
                    .arg(place, value, QString::number(choiceCount - 1), condition.decider));
        } else if (seen.contains(value)) {
            outcome.fail(QStringLiteral("%1: value %2 stands twice").arg(place, value));
        }
        seen.append(value);
    }
    if (seen.size() == choiceCount && seen.removeDuplicates() == 0)
        outcome.warn(place + QStringLiteral(": names every choice, so it hides nothing"));
}

/// What is wrong with the property that decides, empty when nothing is.
QString deciderFault(const OperationClass &declared, const QString &property,
                     const QString &decider)
{
    if (decider == property)
        return QStringLiteral("depends on itself");
    if (!declared.hasProperty(decider))
        return QStringLiteral("there is no property \"%1\"").arg(decider);
    if (declared.choices(decider).isEmpty())
        return QStringLiteral("property %1 has no choices").arg(decider);
    return {};
}

} // namespace

ConditionsCheck::ConditionsCheck()
    : PropertyCheck(
          {QStringLiteral("schema.conditions"), 3,
           QStringLiteral("Conditions name a mode of the same class and values it can have.")})
{
}

void ConditionsCheck::examine(const QString &name, const OperationClass &declared,
                              const QMetaProperty &property, Outcome &outcome) const
{
    const auto text = declared.value(QStringLiteral("show_when"), nameOf(property));
    if (!text)
        return;
    const QString place =
        QStringLiteral("%1: show_when_%2: \"%3\"").arg(name, nameOf(property), *text);
    const auto condition = readCondition(*text);
    if (!condition) {
        outcome.fail(place + QStringLiteral("; expected the form mode=1 or mode=1|2"));
        return;
    }
    const QString fault = deciderFault(declared, nameOf(property), condition->decider);
    if (!fault.isEmpty())
        outcome.fail(QStringLiteral("%1: %2").arg(place, fault));
    else
        checkValues(place, *condition, declared.choices(condition->decider).size(), outcome);
}
