#include "refhost/runner/StepTrace.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperandText.h"
#include "refhost/engine/TaskRunner.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/WarningExplainer.h"

#include "Operation.h"
#include "VariableScope.h"

namespace {

QString valueText(const QVariant &value)
{
    return oneLine(jsonText(variantToJson(value)));
}

constexpr int briefSize = 60;

/// The beginning of a long text or list; half a surrogate pair is left out.
QString beginning(const QString &text)
{
    const int size = text.at(briefSize - 1).isHighSurrogate() ? briefSize - 1 : briefSize;
    return text.left(size) + QStringLiteral("…");
}

/// A value on one line; of a long one the beginning and how long it is.
QString briefText(const QVariant &value)
{
    if (value.userType() == QMetaType::QString) {
        const QString text = value.toString();
        if (text.size() <= briefSize)
            return valueText(text);
        return RunnerText::tr("%1 (%2 characters)")
            .arg(valueText(beginning(text)))
            .arg(text.size());
    }
    QString json = valueText(value);
    if (json.size() <= briefSize)
        return json;
    return RunnerText::tr("%1 (%2 elements)").arg(beginning(json)).arg(value.toList().size());
}

/// What a text operand comes to; nothing to say of a literal that stays as it is.
QString foundText(const OperandRecord &operand)
{
    if (!operand.found.isValid())
        return RunnerText::tr("\"\", since there is no such value");
    const QString text = textOfValue(operand.found);
    return text == operand.written ? QString() : briefText(text);
}

QString foundNumber(const OperandRecord &operand)
{
    const auto number = numberInValue(operand.found);
    if (!number)
        return RunnerText::tr("no number");
    const QString text = valueText(*number);
    return text == operand.written ? QString() : text;
}

/// What stands behind the text of an operand; empty when there is nothing to tell.
QString found(const OperandRecord &operand, const VariableScope &scope)
{
    if (operand.role == PropertyRole::Text)
        return foundText(operand);
    if (operand.role == PropertyRole::Number)
        return foundNumber(operand);
    if (scope.typeOf(operand.written) == VarType::None)
        return RunnerText::tr("no variable");
    return briefText(operand.found);
}

QString operandLine(const OperandRecord &operand, const VariableScope &scope)
{
    const QString line = operand.property + QStringLiteral(": ") + briefText(operand.written);
    const QString value = found(operand, scope);
    return value.isEmpty() ? line : RunnerText::tr("%1 is %2").arg(line, value);
}

} // namespace

void StepTrace::begin(const Operation &step, const VariableScope &scope)
{
    m_operands.clear();
    for (const OperandRecord &operand : m_reader.read(step, scope))
        m_operands.append(operandLine(operand, scope));
}

void StepTrace::show(const StepReport &report, const VariableScope &scope,
                     WarningExplainer &explainer, const Console &console) const
{
    const QString number = stepNumber(report.index);
    const QString indent(number.size(), QLatin1Char(' '));
    console.note(number + oneLine(report.step->toString()));
    console.note(indent + oneLine(report.step->description()));
    for (const QString &line : m_operands)
        console.note(indent + line);
    for (const QString &name : report.written)
        console.note(indent + oneLine(name) + QStringLiteral(" = ") + valueText(scope.get(name)));
    for (const QString &line : report.warnings) {
        console.note(indent + RunnerText::tr("warning: %1").arg(oneLine(line)));
        explainer.explain(report.step->typeId(), line, indent);
    }
    if (report.failure)
        console.note(indent + RunnerText::tr("failed: it threw %1").arg(oneLine(*report.failure)));
    const double microseconds = static_cast<double>(report.nanoseconds) / 1000;
    console.note(indent + RunnerText::tr("took %1 µs").arg(microseconds, 0, 'f', 1));
}
