#include "refhost/engine/JsonWriter.h"

#include "refhost/engine/JsonValue.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QStringView>
#include <QVariantList>

#include <algorithm>
#include <cmath>

namespace {

constexpr ushort byteOrderMark = 0xFEFF;

/// Place of a number: within an array a whole double ends in ".0", so that it differs from an
/// integer.
enum class Place { Array, Elsewhere };

/// Whether JSON has the code unit as it is, whatever stands beside it.
bool isPlain(QChar unit)
{
    return unit >= QLatin1Char(' ') && unit != QLatin1Char('"') && unit != QLatin1Char('\\') &&
           !unit.isSurrogate() && unit != QChar(byteOrderMark);
}

bool isPair(QStringView string, int at)
{
    return string.at(at).isHighSurrogate() && at + 1 < string.size() &&
           string.at(at + 1).isLowSurrogate();
}

/// The end of the code units from `begin` on that JSON has as they are.
int plainEnd(QStringView string, int begin)
{
    const QChar *const units = string.data();
    const auto size = static_cast<int>(string.size());
    int end = begin;
    while (true) {
        while (end < size && isPlain(units[end]))
            ++end;
        if (end == size || !isPair(string, end))
            return end;
        end += 2;
    }
}

void appendEscape(QByteArray &text, ushort unit)
{
    static constexpr char escaped[] = "\"\\\b\f\n\r\t";
    static constexpr char letters[] = "\"\\bfnrt";
    const auto *const end = std::end(escaped) - 1;
    const auto *const found = std::find(std::begin(escaped), end, unit);
    text += '\\';
    if (found != end) {
        text += letters[found - std::begin(escaped)];
        return;
    }
    text += 'u' + QByteArray::number(unit, 16).rightJustified(4, '0');
}

void appendDouble(QByteArray &text, double number, Place place)
{
    if (!std::isfinite(number)) {
        text += "null";
        return;
    }
    const bool isWhole = number == std::trunc(number);
    if (number == 0 && std::signbit(number)) {
        text += "-0.0";
        return;
    }
    // Qt's writer spells out whole numbers of up to 64 bits, too.
    constexpr double longestSpelt = 18446744073709551616.0;
    const char format = isWhole && std::abs(number) < longestSpelt ? 'f' : 'g';
    const QByteArray digits = QByteArray::number(number, format, QLocale::FloatingPointShortest);
    text += digits;
    if (isWhole && place == Place::Array && !digits.contains('e'))
        text += ".0";
}

class Writer
{
public:
    /// Without an indent there is no white space at all.
    Writer(QByteArray &text, bool isIndented)
        : m_text(text)
        , m_isIndented(isIndented)
    {
    }

    void append(const JsonValue &value, Place place = Place::Elsewhere);

private:
    void appendArray(const JsonArray &array);
    void appendObject(const JsonObject &object);
    void beginItem(bool isFirst);
    void end(char bracket);
    void breakLine();

    QByteArray &m_text;
    bool m_isIndented;
    int m_depth = 0;
};

void Writer::append(const JsonValue &value, Place place)
{
    if (value.isString())
        appendJsonString(m_text, value.toString());
    else if (value.isInteger())
        m_text += QByteArray::number(value.toInteger());
    else if (value.isDouble())
        appendDouble(m_text, value.toDouble(), place);
    else if (value.isWideInteger())
        m_text += value.wideDigits().toLatin1();
    else if (value.isBool())
        m_text += value.toBool() ? "true" : "false";
    else if (value.isArray())
        appendArray(value.toArray());
    else if (value.isObject())
        appendObject(value.toObject());
    else
        m_text += "null";
}

void Writer::appendArray(const JsonArray &array)
{
    m_text += '[';
    ++m_depth;
    bool isFirst = true;
    for (const JsonValue &element : array) {
        beginItem(isFirst);
        append(element, Place::Array);
        isFirst = false;
    }
    end(']');
}

void Writer::appendObject(const JsonObject &object)
{
    m_text += '{';
    ++m_depth;
    bool isFirst = true;
    for (const JsonMember &member : object) {
        beginItem(isFirst);
        appendJsonString(m_text, member.key);
        m_text += m_isIndented ? ": " : ":";
        append(member.value);
        isFirst = false;
    }
    end('}');
}

void Writer::beginItem(bool isFirst)
{
    if (!isFirst)
        m_text += ',';
    breakLine();
}

void Writer::end(char bracket)
{
    --m_depth;
    breakLine();
    m_text += bracket;
}

void Writer::breakLine()
{
    constexpr int spacesPerLevel = 4;
    if (m_isIndented)
        m_text += '\n' + QByteArray(m_depth * spacesPerLevel, ' ');
}

void appendList(QByteArray &text, const QVariantList &list);

void appendVariant(QByteArray &text, const QVariant &value, Place place)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return appendJsonString(text, value.toString());
    case QMetaType::Int:
        text += QByteArray::number(value.toInt());
        return;
    case QMetaType::QVariantList:
        return appendList(text, value.toList());
    default:
        Writer(text, false).append(variantToJson(value), place);
    }
}

void appendList(QByteArray &text, const QVariantList &list)
{
    text += '[';
    for (int i = 0; i < list.size(); ++i) {
        if (i > 0)
            text += ',';
        appendVariant(text, list.at(i), Place::Array);
    }
    text += ']';
}

} // namespace

void appendJson(QByteArray &text, const JsonValue &value)
{
    Writer(text, false).append(value);
}

void appendJsonText(QByteArray &text, const QVariant &value)
{
    appendVariant(text, value, Place::Elsewhere);
}

void appendJsonString(QByteArray &text, const QString &string)
{
    const QStringView view(string);
    text += '"';
    for (int at = 0; at < string.size();) {
        const int end = plainEnd(view, at);
        text += view.mid(at, end - at).toUtf8();
        at = end;
        if (at < string.size())
            appendEscape(text, string.at(at++).unicode());
    }
    text += '"';
}

QString jsonText(const JsonValue &value)
{
    QByteArray text;
    appendJson(text, value);
    return QString::fromUtf8(text);
}

QByteArray indentedJson(const JsonValue &value)
{
    QByteArray text;
    Writer(text, true).append(value);
    return text + '\n';
}

JsonValue jsonFromQt(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double: {
        const QVariant number = value.toVariant();
        return number.userType() == QMetaType::LongLong ? JsonValue(number.toLongLong())
                                                        : JsonValue(number.toDouble());
    }
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array: {
        JsonArray elements;
        const QJsonArray array = value.toArray();
        for (const QJsonValue &element : array)
            elements.append(jsonFromQt(element));
        return elements;
    }
    case QJsonValue::Object: {
        JsonObject members;
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            members.append(member.key(), jsonFromQt(member.value()));
        return members;
    }
    default:
        return nullptr;
    }
}
