#include "refhost/engine/JsonValue.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/Excerpt.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QVariantList>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

bool isInt(double number)
{
    using Limits = std::numeric_limits<int>;
    return number == std::trunc(number) && number >= Limits::min() && number <= Limits::max();
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
QVariant elementFromJson(const QJsonValue &json);

QVariant listFromJson(const QJsonArray &array)
{
    QVariantList list;
    list.reserve(array.size());
    for (const QJsonValue &json : array) {
        const QVariant element = elementFromJson(json);
        if (!element.isValid())
            return {};
        list.append(element);
    }
    return list;
}

QVariant elementFromJson(const QJsonValue &json)
{
    if (json.isArray())
        return listFromJson(json.toArray());
    if (json.isString())
        return json.toString();
    if (json.isBool())
        return json.toBool();
    if (!json.isDouble())
        return {};
    // Qt keeps whole numbers of up to 64 bits apart from the others here.
    return isInt(json.toDouble()) ? QVariant(json.toInt()) : json.toVariant();
}

bool isTable(const QJsonArray &array)
{
    return std::all_of(array.begin(), array.end(), [](const auto &row) { return row.isArray(); });
}

/// The value when it fits the type, else invalid.
QVariant fittingValue(const QJsonValue &json, VarType type)
{
    switch (type) {
    case VarType::Int:
        return json.isDouble() && isInt(json.toDouble()) ? json.toInt() : QVariant();
    case VarType::Double:
        if (json.isString() && isSpecialNumber(json.toString()))
            return json.toString().toDouble();
        return json.isDouble() ? json.toDouble() : QVariant();
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
QJsonValue jsonFromText(const QString &text, VarType type)
{
    if (type == VarType::String || (type == VarType::Double && isSpecialNumber(text)))
        return text;
    // Wrapped, since a JSON text of its own is an array or an object in Qt.
    const QByteArray wrapped = '[' + text.toUtf8() + ']';
    const QJsonArray array = QJsonDocument::fromJson(wrapped).array();
    return array.size() == 1 ? array.first() : QJsonValue(QJsonValue::Undefined);
}

/// Whether JSON has the character as it is.
bool isPlain(QChar character)
{
    return character >= QLatin1Char(' ') && character != QLatin1Char('"') &&
           character != QLatin1Char('\\') && !character.isSurrogate();
}

void appendString(QByteArray &text, const QString &string)
{
    if (!std::all_of(string.begin(), string.end(), isPlain)) {
        text += jsonText(string).toUtf8();
        return;
    }
    text += '"';
    text += string.toUtf8();
    text += '"';
}

void appendList(QByteArray &text, const QVariantList &list)
{
    char before = '[';
    for (const QVariant &element : list) {
        text += before;
        appendJsonText(text, element);
        before = ',';
    }
    text += list.isEmpty() ? "[]" : "]";
}

} // namespace

Result<QVariant> variantFromJson(const QJsonValue &json, VarType type)
{
    const QVariant value = fittingValue(json, type);
    if (!value.isValid())
        return unfit(jsonText(json), expectation(type));
    return value;
}

Result<QVariant> variantFromText(const QString &text, VarType type)
{
    const QVariant value = fittingValue(jsonFromText(text, type), type);
    if (!value.isValid())
        return unfit(jsonText(text), expectation(type));
    return value;
}

QJsonValue variantToJson(const QVariant &value)
{
    if (value.canConvert<QVariantList>()) {
        QJsonArray array;
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

Problem wrongKind(const QString &place, const QJsonValue &found, const QString &expected)
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

QString jsonText(const QJsonValue &json)
{
    const QByteArray wrapped = QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

void appendJsonText(QByteArray &text, const QVariant &value)
{
    if (value.type() == QVariant::String)
        appendString(text, value.toString());
    else if (value.type() == QVariant::List)
        appendList(text, value.toList());
    else if (value.type() == QVariant::Int)
        text += QByteArray::number(value.toInt());
    else
        text += jsonText(variantToJson(value)).toUtf8();
}
