#include "refhost/engine/PropertyValue.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/NameIndex.h"

#include <QLocale>

#include <cmath>

namespace {

QString quotedList(const QStringList &texts)
{
    QStringList quoted;
    for (const QString &text : texts)
        quoted.append(QLatin1Char('"') + text + QLatin1Char('"'));
    return listText(quoted);
}

Problem unfit(const JsonValue &json, const QString &expected,
              Problem::Reason reason = Problem::Reason::UnfitValue)
{
    return {reason, {}, {}, EngineText::tr("%1; expected %2").arg(jsonText(json), expected)};
}

bool isNumericOperand(const PropertySchema &schema)
{
    return schema.editor.startsWith(QLatin1String("NUMVAR:"));
}

/// The number as an operand, without an exponent.
QString numberText(const JsonValue &number)
{
    if (!number.isDouble())
        return jsonText(number);
    // Qt writes both zeros alike.
    const bool isMinusZero = number.toDouble() == 0 && std::signbit(number.toDouble());
    return isMinusZero ? QStringLiteral("-0")
                       : QString::number(number.toDouble(), 'f', QLocale::FloatingPointShortest);
}

Result<QVariant> operandFromJson(const JsonValue &json, const PropertySchema &schema)
{
    if (json.isString())
        return QVariant(json.toString());
    if (!isNumericOperand(schema))
        return unfit(json, EngineText::tr("a string"));
    if (!json.isNumber())
        return unfit(json, EngineText::tr("a number or a string"));
    return QVariant(numberText(json));
}

Result<QVariant> choiceFromJson(const JsonValue &json, const PropertySchema &schema)
{
    if (json.isString()) {
        const int index = schema.choices.indexOf(json.toString());
        if (index >= 0)
            return QVariant(index);
    } else if (Result<QVariant> number = variantFromJson(json, VarType::Int)) {
        return number;
    }
    Problem problem = unfit(
        json,
        EngineText::tr("one of %1, or the number of a choice").arg(quotedList(schema.choices)),
        Problem::Reason::UnknownChoice);
    problem.message = withSuggestion(problem.message, nearestName(json.toString(), schema.choices));
    return problem;
}

} // namespace

Result<QVariant> propertyFromJson(const JsonValue &json, const PropertySchema &schema)
{
    if (!schema.choices.isEmpty())
        return choiceFromJson(json, schema);
    if (schema.typeName == QLatin1String("QString"))
        return operandFromJson(json, schema);
    if (schema.typeName == QLatin1String("int"))
        return variantFromJson(json, VarType::Int);
    if (schema.typeName == QLatin1String("double"))
        return variantFromJson(json, VarType::Double);
    if (schema.typeName == QLatin1String("bool"))
        return variantFromJson(json, VarType::Bool);
    return unfit(json, EngineText::tr("nothing: a property of type %1 cannot stand in a task file")
                           .arg(schema.typeName));
}

JsonValue propertyToJson(const QVariant &value, const PropertySchema &schema)
{
    const QString label = schema.choices.value(value.toInt());
    return label.isEmpty() ? variantToJson(value) : JsonValue(label);
}
