#include "refhost/runner/StepTrace.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperandText.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"
#include "refhost/engine/TaskRunner.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/OneLine.h"

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
        return QStringLiteral("%1 (%2 characters)")
            .arg(valueText(beginning(text)))
            .arg(text.size());
    }
    QString json = valueText(value);
    if (json.size() <= briefSize)
        return json;
    return QStringLiteral("%1 (%2 elements)").arg(beginning(json)).arg(value.toList().size());
}

/// What a text operand comes to; nothing to say of a literal that stays as it is.
QString foundText(const QString &written, const VariableScope &scope)
{
    const QVariant value = operandValue(readOperand(written), scope);
    if (!value.isValid())
        return QStringLiteral("\"\", since there is no such value");
    const QString text = textOfValue(value);
    return text == written ? QString() : briefText(text);
}

QString foundNumber(const QString &written, const VariableScope &scope)
{
    const auto number = numberInValue(operandValue(readOperand(written), scope));
    if (!number)
        return QStringLiteral("no number");
    const QString text = valueText(*number);
    return text == written ? QString() : text;
}

QString foundVariable(const QString &name, const VariableScope &scope)
{
    if (scope.typeOf(name) == VarType::None)
        return QStringLiteral("no variable");
    return briefText(scope.get(name));
}

/// What stands behind the text of a property; empty when there is nothing to tell.
QString found(const QString &written, PropertyRole role, const VariableScope &scope)
{
    switch (role) {
    case PropertyRole::Text:
        return foundText(written, scope);
    case PropertyRole::Number:
        return foundNumber(written, scope);
    case PropertyRole::Input:
        return foundVariable(written, scope);
    case PropertyRole::Result:
    case PropertyRole::Other:
        break;
    }
    return {};
}

/// The operands that the editor shows, as they are written and as the step finds them.
QStringList operandLines(const Operation &step, const VariableScope &scope)
{
    QStringList lines;
    const OperationSchema schema(step);
    for (const PropertySchema &property : schema.properties()) {
        const PropertyRole role = roleOf(property);
        if (role == PropertyRole::Result || role == PropertyRole::Other || !isShown(property, step))
            continue;
        const QString written = step.property(property.name.toLatin1().constData()).toString();
        QString line = property.name + QStringLiteral(": ") + briefText(written);
        const QString value = found(written, role, scope);
        if (!value.isEmpty())
            line += QStringLiteral(" is ") + value;
        lines.append(line);
    }
    return lines;
}

} // namespace

void StepTrace::begin(const Operation &step, const VariableScope &scope)
{
    m_operands = operandLines(step, scope);
}

void StepTrace::show(const StepReport &report, const VariableScope &scope,
                     const Console &console) const
{
    const QString number = stepNumber(report.index);
    const QString indent(number.size(), QLatin1Char(' '));
    console.note(number + oneLine(report.step->toString()));
    console.note(indent + oneLine(report.step->description()));
    for (const QString &line : m_operands)
        console.note(indent + line);
    for (const QString &name : report.written)
        console.note(indent + oneLine(name) + QStringLiteral(" = ") + valueText(scope.get(name)));
    for (const QString &line : report.warnings)
        console.note(indent + QStringLiteral("warning: ") + oneLine(line));
    const double microseconds = static_cast<double>(report.nanoseconds) / 1000;
    console.note(indent + QStringLiteral("took %1 µs").arg(microseconds, 0, 'f', 1));
}
