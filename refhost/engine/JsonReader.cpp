#include "refhost/engine/JsonReader.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/Excerpt.h"
#include "refhost/engine/JsonWriter.h"

#include <QSet>

#include <rapidjson/reader.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <new>
#include <utility>
#include <vector>

namespace {

using Reason = Problem::Reason;
using Encoding = rapidjson::UTF16<char16_t>;
using Stream = rapidjson::GenericStringStream<Encoding>;
using MemberTaker = std::function<void(const QString &, const JsonValue &)>;

constexpr std::size_t deepestNesting = 1024;

/// The parser's memory. RapidJSON's own allocator returns null where there is none left.
class Allocator
{
public:
    [[maybe_unused]] static const bool kNeedFree = true;

    void *Malloc(std::size_t size) { return size == 0 ? nullptr : checked(std::malloc(size)); }
    void *Realloc(void *memory, std::size_t, std::size_t size)
    {
        if (size != 0)
            return checked(std::realloc(memory, size));
        std::free(memory);
        return nullptr;
    }
    static void Free(void *memory) { std::free(memory); }

private:
    static void *checked(void *memory) { return memory ? memory : throw std::bad_alloc(); }
};

QString stringOf(const char16_t *units, std::size_t size)
{
    return QString(reinterpret_cast<const QChar *>(units), static_cast<int>(size));
}

QString unexpected(const QString &found, const QString &expected)
{
    return EngineText::tr("%1; expected %2").arg(found, expected);
}

QString numberTooLarge(const QString &literal)
{
    return unexpected(excerpt(literal),
                      EngineText::tr("a number of at most 1.7976931348623157e308"));
}

bool isFraction(char16_t unit)
{
    return unit == u'.' || unit == u'e' || unit == u'E' || unit == u'+';
}

/// The number that begins at `unit`.
QString numberLiteral(const char16_t *unit)
{
    const char16_t *const begin = unit;
    while ((*unit >= u'0' && *unit <= u'9') || *unit == u'-' || isFraction(*unit))
        ++unit;
    return stringOf(begin, static_cast<std::size_t>(unit - begin));
}

const char16_t *unitsOf(const QString &text)
{
    return reinterpret_cast<const char16_t *>(text.utf16());
}

/// The keys of one object so far.
class KeySet
{
public:
    /// Adds a key; false when it is there already.
    bool add(const QString &key)
    {
        if (m_keys.size() == few) {
            for (const QString &known : m_keys)
                m_set.insert(known);
        }
        const bool isKnown = m_keys.size() < few
                                 ? std::find(m_keys.begin(), m_keys.end(), key) != m_keys.end()
                                 : m_set.contains(key);
        if (m_keys.size() <= few)
            m_keys.push_back(key);
        if (m_keys.size() > few)
            m_set.insert(key);
        return !isKnown;
    }

private:
    static constexpr std::size_t few = 16;

    std::vector<QString> m_keys; ///< up to the first one more than `few`
    QSet<QString> m_set;         ///< all keys when there are more than `few`
};

/// An array or object whose end has not come yet.
struct OpenValue
{
    JsonValue value;
    QString key; ///< of the member that comes next
    KeySet keys;
};

/// Builds the value from the parser's events. The functions are named by RapidJSON; they return
/// false to end the parse.
class Builder
{
public:
    /// With `take`, the members of the outermost object go there and not into the value.
    Builder(const Stream &stream, const MemberTaker &take)
        : m_stream(stream)
        , m_take(take)
    {
    }

    bool Null() { return add(nullptr); }
    bool Bool(bool value) { return add(value); }
    bool Int(int value) { return value == 0 ? add(zero()) : add(qint64(value)); }
    bool Uint(unsigned value) { return value == 0 ? add(zero()) : add(qint64(value)); }
    bool Int64(std::int64_t value) { return add(qint64(value)); }
    bool Uint64(std::uint64_t value)
    {
        return value > quint64(std::numeric_limits<qint64>::max()) ? addLiteral()
                                                                   : add(qint64(value));
    }
    bool Double(double) { return addLiteral(); }
    bool RawNumber(const char16_t *, rapidjson::SizeType, bool) { return false; }
    bool String(const char16_t *units, rapidjson::SizeType size, bool)
    {
        return add(stringOf(units, size));
    }
    bool Key(const char16_t *units, rapidjson::SizeType size, bool);
    bool StartObject() { return open(JsonObject()); }
    bool EndObject(rapidjson::SizeType) { return close(); }
    bool StartArray() { return open(JsonArray()); }
    bool EndArray(rapidjson::SizeType) { return close(); }

    /// The complete value, when there was no problem.
    const JsonValue &value() const { return m_value; }

    /// Why a function returned false.
    const QString &problem() const { return m_problem; }

    /// The code unit that the problem is about.
    std::size_t problemOffset() const { return m_problemOffset; }

private:
    JsonValue zero() const;
    bool add(JsonValue value);
    bool addLiteral();
    bool open(JsonValue value);
    bool close();
    bool fail(const QString &problem, std::size_t offset);

    const Stream &m_stream; ///< stands at the start of a key or scalar during its event
    const MemberTaker &m_take;
    std::vector<OpenValue> m_open;
    JsonValue m_value;
    QString m_problem;
    std::size_t m_problemOffset = 0;
};

bool Builder::Key(const char16_t *units, rapidjson::SizeType size, bool)
{
    OpenValue &object = m_open.back();
    object.key = stringOf(units, size);
    if (object.keys.add(object.key))
        return true;
    return fail(EngineText::tr("the key %1 for the second time; expected each key once")
                    .arg(excerpt(jsonText(object.key))),
                m_stream.Tell());
}

/// The literal `0` or `-0`.
JsonValue Builder::zero() const
{
    return m_stream.Peek() == u'-' ? JsonValue(-0.0) : JsonValue(0);
}

bool Builder::add(JsonValue value)
{
    if (m_open.empty())
        m_value = std::move(value);
    else if (m_open.back().value.isArray())
        m_open.back().value.append(std::move(value));
    else if (m_open.size() == 1 && m_take)
        m_take(m_open.back().key, value);
    else
        m_open.back().value.append(m_open.back().key, std::move(value));
    return true;
}

/// Adds the number at the stream's place, which is no integer of 64 bits.
bool Builder::addLiteral()
{
    const QString literal = numberLiteral(m_stream.src_);
    const double number = literal.toLatin1().toDouble();
    if (!std::isfinite(number))
        return fail(numberTooLarge(literal), m_stream.Tell());
    const auto isPart = [](QChar unit) { return isFraction(unit.unicode()); };
    if (std::any_of(literal.begin(), literal.end(), isPart))
        return add(number);
    return add(JsonValue::WideInteger{literal});
}

bool Builder::open(JsonValue value)
{
    if (m_open.size() == deepestNesting) {
        return fail(
            EngineText::tr("more than %1 arrays and objects within each other").arg(deepestNesting),
            m_stream.Tell() - 1);
    }
    m_open.push_back({std::move(value), {}, {}});
    return true;
}

bool Builder::close()
{
    JsonValue value = std::move(m_open.back().value);
    m_open.pop_back();
    return add(std::move(value));
}

bool Builder::fail(const QString &problem, std::size_t offset)
{
    m_problem = problem;
    m_problemOffset = offset;
    return false;
}

// Unpaired surrogates: RapidJSON refuses their escapes, but copies them where they stand as they
// are. So their escapes are replaced before the parse.

constexpr int escapeSize = 6;

/// The value of a hexadecimal digit, -1 for another character.
int hexValue(QChar digit)
{
    const ushort unit = digit.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    const int letter = unit | 0x20;
    return letter >= u'a' && letter <= u'f' ? letter - u'a' + 10 : -1;
}

/// The code unit of the escape "\\uXXXX" at `at`, -1 when there is no such escape.
int escapedUnit(const QString &text, int at)
{
    if (text.midRef(at, 2) != QLatin1String("\\u") || text.size() < at + escapeSize)
        return -1;
    int unit = 0;
    for (int i = at + 2; i < at + escapeSize; ++i) {
        const int digit = hexValue(text.at(i));
        if (digit < 0)
            return -1;
        unit = unit * 16 + digit;
    }
    return unit;
}

bool isHighSurrogate(int unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(int unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// The first escape of an unpaired surrogate at or after `from`, which is not within an escape; -1
/// when there is none.
int nextUnpaired(const QString &text, int from)
{
    int at = text.indexOf(QLatin1Char('\\'), from);
    while (at >= 0) {
        const int unit = escapedUnit(text, at);
        const bool isPair =
            isHighSurrogate(unit) && isLowSurrogate(escapedUnit(text, at + escapeSize));
        if (!isPair && (isHighSurrogate(unit) || isLowSurrogate(unit)))
            return at;
        const int size = isPair ? 2 * escapeSize : 2;
        at = text.indexOf(QLatin1Char('\\'), at + size);
    }
    return -1;
}

/// The text with unpaired surrogates in place of their escapes.
QString withBareSurrogates(const QString &text)
{
    int next = nextUnpaired(text, 0);
    if (next < 0)
        return text;
    QString bare;
    bare.reserve(text.size());
    int from = 0;
    for (; next >= 0; next = nextUnpaired(text, from)) {
        bare.append(text.midRef(from, next - from));
        bare.append(QChar(static_cast<ushort>(escapedUnit(text, next))));
        from = next + escapeSize;
    }
    return bare.append(text.midRef(from));
}

/// Where in `text` the code unit at `bareOffset` of `withBareSurrogates(text)` stands.
int originalOffset(const QString &text, int bareOffset)
{
    int shift = 0;
    int next = nextUnpaired(text, 0);
    while (next >= 0 && next - shift < bareOffset) {
        shift += escapeSize - 1;
        next = nextUnpaired(text, next + escapeSize);
    }
    return bareOffset + shift;
}

// Problems.

QString lineAndColumn(qint64 line, int column)
{
    return EngineText::tr("line %1, column %2").arg(QString::number(line), QString::number(column));
}

QString placeOf(const QString &text, int offset, qint64 firstLine)
{
    const QStringRef before = text.leftRef(offset);
    const int column = offset - before.lastIndexOf(QLatin1Char('\n'));
    return lineAndColumn(firstLine + before.count(QLatin1Char('\n')), column);
}

Problem malformed(const QString &place, const QString &reason)
{
    return {Reason::MalformedJson, {}, place, EngineText::tr("malformed JSON (%1)").arg(reason)};
}

/// Of what looks like a word or a number.
bool isWordUnit(QChar unit)
{
    return unit.isLetterOrNumber() || QLatin1String("+-._").indexOf(unit) >= 0;
}

/// What stands at `offset`, for messages.
QString foundAt(const QString &text, int offset)
{
    if (offset >= text.size())
        return EngineText::tr("the end of the text");
    int size = text.at(offset).isHighSurrogate() ? 2 : 1;
    if (isWordUnit(text.at(offset))) {
        while (offset + size < text.size() && isWordUnit(text.at(offset + size)))
            ++size;
    }
    return excerpt(jsonText(text.mid(offset, size)));
}

/// Why the string that has a problem at `offset` is malformed.
QString stringProblem(const QString &text, int offset)
{
    if (offset >= text.size())
        return unexpected(foundAt(text, offset), EngineText::tr("\" at the end of a string"));
    const QChar unit = text.at(offset);
    if (unit != QLatin1Char('\\')) {
        return EngineText::tr("the control character U+%1 within a string; expected an escape")
            .arg(QString::number(unit.unicode(), 16).toUpper().rightJustified(4, QLatin1Char('0')));
    }
    if (text.midRef(offset + 1, 1) == QLatin1String("u")) {
        return EngineText::tr("%1 is no escape; expected four hexadecimal digits after \\u")
            .arg(text.mid(offset, escapeSize));
    }
    return EngineText::tr("%1 is no escape; expected \\\\ for a backslash")
        .arg(text.mid(offset, 2));
}

QString expectedFor(rapidjson::ParseErrorCode code)
{
    switch (code) {
    case rapidjson::kParseErrorDocumentRootNotSingular:
        return EngineText::tr("the end of the text");
    case rapidjson::kParseErrorObjectMissName:
        return EngineText::tr("a key in double quotes");
    case rapidjson::kParseErrorObjectMissColon:
        return EngineText::tr("\":\" after a key");
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
        return EngineText::tr("\",\" or \"}\" after a member");
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
        return EngineText::tr("\",\" or \"]\" after an element");
    case rapidjson::kParseErrorNumberMissFraction:
        return EngineText::tr("a digit after the decimal point");
    case rapidjson::kParseErrorNumberMissExponent:
        return EngineText::tr("a digit in the exponent");
    default:
        return EngineText::tr("a value");
    }
}

/// The offset of a problem that the parser found within a word, such as "nul".
int wordStart(const QString &text, int offset)
{
    const auto isLetter = [](QChar unit) { return unit >= u'a' && unit <= u'z'; };
    while (offset > 0 && isLetter(text.at(offset - 1)))
        --offset;
    return offset;
}

/// The problem of the parse of `text`, which has no escapes of unpaired surrogates.
Problem problemOf(const rapidjson::ParseResult &result, const Builder &builder, const QString &text,
                  const QString &original, qint64 firstLine)
{
    auto offset = static_cast<int>(result.Offset());
    QString reason;
    switch (result.Code()) {
    case rapidjson::kParseErrorTermination:
        offset = static_cast<int>(builder.problemOffset());
        reason = builder.problem();
        break;
    case rapidjson::kParseErrorNumberTooBig:
        reason = numberTooLarge(numberLiteral(unitsOf(text) + offset));
        break;
    case rapidjson::kParseErrorStringMissQuotationMark:
    case rapidjson::kParseErrorStringEscapeInvalid:
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
        reason = stringProblem(text, offset);
        break;
    default:
        if (result.Code() == rapidjson::kParseErrorValueInvalid)
            offset = wordStart(text, offset);
        reason = unexpected(foundAt(text, offset), expectedFor(result.Code()));
    }
    return malformed(placeOf(original, originalOffset(original, offset), firstLine), reason);
}

/// Parses `original`; with `take`, the members of an object go there.
Result<JsonValue> parse(const QString &original, qint64 firstLine, const MemberTaker &take)
{
    const QString text = withBareSurrogates(original);
    Stream stream(unitsOf(text));
    Builder builder(stream, take);
    Allocator allocator;
    rapidjson::GenericReader<Encoding, Encoding, Allocator> reader(&allocator);
    rapidjson::ParseResult result = reader.Parse<rapidjson::kParseNoFlags>(stream, builder);
    // The parser takes a zero for the end of the text.
    const auto size = static_cast<std::size_t>(text.size());
    if (!result.IsError() && stream.Tell() < size)
        result.Set(rapidjson::kParseErrorDocumentRootNotSingular, stream.Tell());
    if (result.IsError())
        return problemOf(result, builder, text, original, firstLine);
    return builder.value();
}

/// Returns the offset in `text`, decoded from `bytes`, of the first byte that is not UTF-8; -1 when
/// there is none.
int badOffset(const QString &text, const QByteArray &bytes)
{
    // U+FFFD stands for bytes that are not UTF-8, or for itself.
    if (!text.contains(QChar(QChar::ReplacementCharacter)))
        return -1;
    const QByteArray mark("\xEF\xBB\xBF");
    const QByteArray content = bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes;
    const QByteArray encoded = text.toUtf8();
    const auto *const different =
        std::mismatch(encoded.begin(), encoded.end(), content.begin(), content.end()).first;
    auto at = static_cast<int>(different - encoded.begin());
    if (at == encoded.size())
        return -1;
    const auto isContinuation = [](char byte) { return (byte & 0xC0) == 0x80; };
    while (isContinuation(encoded.at(at)))
        --at;
    return QString::fromUtf8(encoded.constData(), at).size();
}

/// Returns the text of UTF-8 bytes without a byte order mark.
Result<QString> textOf(const QByteArray &bytes, qint64 firstLine)
{
    // Not of the array itself, which Qt takes to end at a zero.
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    const int offset = badOffset(text, bytes);
    if (offset < 0)
        return text;
    return malformed(placeOf(text, offset, firstLine), EngineText::tr("bytes that are not UTF-8"));
}

/// What a value other than an object is called in messages.
QString kindOf(const JsonValue &value)
{
    if (value.isArray())
        return EngineText::tr("an array");
    if (value.isString())
        return EngineText::tr("a string");
    if (value.isNumber())
        return EngineText::tr("a number");
    return jsonText(value);
}

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar unit) { return QLatin1String(" \t\r\n").indexOf(unit) >= 0; });
}

Problem notAnObject(qint64 firstLine, const QString &found, Reason reason)
{
    return {reason,
            {},
            lineAndColumn(firstLine, 1),
            unexpected(found, EngineText::tr("an object in braces"))};
}

/// Parses the text of an object; with `take`, its members go there.
Result<JsonObject> parseObject(const QByteArray &json, qint64 firstLine, const MemberTaker &take)
{
    const Result<QString> text = textOf(json, firstLine);
    if (!text)
        return text.problem();
    if (isBlank(text.value()))
        return notAnObject(firstLine, EngineText::tr("an empty text"), Reason::MalformedJson);
    const Result<JsonValue> value = parse(text.value(), firstLine, take);
    if (!value)
        return value.problem();
    if (!value.value().isObject())
        return notAnObject(firstLine, kindOf(value.value()), Reason::WrongKind);
    return value.value().toObject();
}

} // namespace

Result<JsonValue> parseJson(const QByteArray &json)
{
    const Result<QString> text = textOf(json, 1);
    return text ? parse(text.value(), 1, {}) : text.problem();
}

Result<JsonValue> parseJson(const QString &json)
{
    return parse(json, 1, {});
}

Result<JsonObject> parseJsonObject(const QByteArray &json, const QString &file, qint64 firstLine)
{
    Result<JsonObject> object = parseObject(json, firstLine, {});
    if (object)
        return object;
    Problem problem = object.problem();
    problem.file = file;
    return problem;
}

std::optional<Problem> parseJsonMembers(const QByteArray &json, qint64 firstLine,
                                        const MemberTaker &take)
{
    const Result<JsonObject> object = parseObject(json, firstLine, take);
    return object ? std::nullopt : std::optional<Problem>(object.problem());
}
