#include "refhost/engine/JsonValue.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/Excerpt.h"
#include "refhost/engine/JsonReader.h"

#include <QVariantList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

template <typename Number>
bool isInt(Number number)
{
    using Limits = std::numeric_limits<int>;
    return number >= Limits::min() && number <= Limits::max();
}

/// The number as an int, invalid when it is none.
QVariant intFromJson(const JsonValue &json)
{
    if (json.isInteger())
        return isInt(json.toInteger()) ? static_cast<int>(json.toInteger()) : QVariant();
    const double number = json.toDouble();
    const bool fits = json.isDouble() && number == std::trunc(number) && isInt(number);
    return fits ? static_cast<int>(number) : QVariant();
}

Problem unfit(const QString &found, const QString &expected)
{
    return {Problem::Reason::UnfitValue,
            {},
            {},
            EngineText::tr("%1; expected %2").arg(excerpt(found), expected)};
}

QString expectation(VarType type)
{
    switch (type) {
    case VarType::Int:
        return EngineText::tr("a whole number from -2147483648 to 2147483647");
    case VarType::Double:
        return EngineText::tr("a number, or one of \"inf\", \"-inf\" and \"nan\"");
    case VarType::String:
        return EngineText::tr("a string");
    case VarType::Bool:
        return EngineText::tr("true or false");
    case VarType::List:
        return EngineText::tr("an array of strings, numbers, booleans and such arrays");
    case VarType::Table:
        return EngineText::tr("an array of rows, each an array");
    case VarType::None:
        break;
    }
    return EngineText::tr("a value of a known type");
}

bool isSpecialNumber(const QString &text)
{
    return text == QLatin1String("inf") || text == QLatin1String("-inf") ||
           text == QLatin1String("nan");
}

/// A list element: invalid when JSON has something there that no list holds.
QVariant elementFromJson(const JsonValue &json);

QVariant listFromJson(const JsonArray &array)
{
    QVariantList list;
    list.reserve(array.size());
    for (const JsonValue &json : array) {
        const QVariant element = elementFromJson(json);
        if (!element.isValid())
            return {};
        list.append(element);
    }
    return list;
}

QVariant elementFromJson(const JsonValue &json)
{
    if (json.isArray())
        return listFromJson(json.toArray());
    if (json.isString())
        return json.toString();
    if (json.isBool())
        return json.toBool();
    if (json.isInteger())
        return isInt(json.toInteger()) ? intFromJson(json) : json.toInteger();
    return json.isDouble() ? json.toDouble() : QVariant();
}

/// The first whole number in the array, or in arrays in it, that no list holds; undefined when
/// there is none.
JsonValue findWideInteger(const JsonArray &array)
{
    for (const JsonValue &json : array) {
        if (json.isWideInteger())
            return json;
        JsonValue inner = findWideInteger(json.toArray());
        if (!inner.isUndefined())
            return inner;
    }
    return {};
}

bool isTable(const JsonArray &array)
{
    return std::all_of(array.begin(), array.end(),
                       [](const JsonValue &row) { return row.isArray(); });
}

/// The value when it fits the type, else invalid.
QVariant fittingValue(const JsonValue &json, VarType type)
{
    switch (type) {
    case VarType::Int:
        return intFromJson(json);
    case VarType::Double:
        if (json.isString() && isSpecialNumber(json.toString()))
            return json.toString().toDouble();
        return json.isNumber() ? json.toDouble() : QVariant();
    case VarType::String:
        return json.isString() ? json.toString() : QVariant();
    case VarType::Bool:
        return json.isBool() ? json.toBool() : QVariant();
    case VarType::List:
        return json.isArray() ? listFromJson(json.toArray()) : QVariant();
    case VarType::Table:
        return json.isArray() && isTable(json.toArray()) ? listFromJson(json.toArray())
                                                         : QVariant();
    case VarType::None:
        break;
    }
    return {};
}

/// What a user's text stands for in JSON, undefined when it is no such text.
JsonValue jsonFromText(const QString &text, VarType type)
{
    if (type == VarType::String || (type == VarType::Double && isSpecialNumber(text)))
        return text;
    const Result<JsonValue> json = parseJson(text);
    return json ? json.value() : JsonValue();
}

/// Why `json`, which `found` shows, does not fit the type.
Problem unfitValue(const JsonValue &json, const QString &found, VarType type)
{
    const JsonValue wide = findWideInteger(json.toArray());
    if (wide.isUndefined() || (type != VarType::List && type != VarType::Table))
        return unfit(found, expectation(type));
    return unfit(wide.wideDigits(),
                 EngineText::tr("a whole number from -9223372036854775808 to 9223372036854775807, "
                                "or a string such as %1")
                     .arg(jsonText(wide.wideDigits())));
}

} // namespace

Result<QVariant> variantFromJson(const JsonValue &json, VarType type)
{
    const QVariant value = fittingValue(json, type);
    if (!value.isValid())
        return unfitValue(json, jsonText(json), type);
    return value;
}

Result<QVariant> variantFromText(const QString &text, VarType type)
{
    const JsonValue json = jsonFromText(text, type);
    const QVariant value = fittingValue(json, type);
    if (!value.isValid())
        return unfitValue(json, jsonText(text), type);
    return value;
}

JsonValue variantToJson(const QVariant &value)
{
    if (value.canConvert<QVariantList>()) {
        JsonArray array;
        const auto elements = value.value<QVariantList>();
        for (const QVariant &element : elements)
            array.append(variantToJson(element));
        return array;
    }
    if (value.type() == QVariant::Bool)
        return value.toBool();
    if (value.type() == QVariant::Int || value.type() == QVariant::LongLong)
        return value.toLongLong();
    if (value.type() == QVariant::Double && std::isfinite(value.toDouble()))
        return value.toDouble();
    return value.toString();
}

Problem wrongKind(const QString &place, const JsonValue &found, const QString &expected)
{
    if (found.isUndefined()) {
        return {Problem::Reason::MissingKey,
                {},
                place,
                EngineText::tr("missing; expected %1").arg(expected)};
    }
    return {Problem::Reason::WrongKind,
            {},
            place,
            EngineText::tr("%1; expected %2").arg(excerpt(jsonText(found)), expected)};
}
