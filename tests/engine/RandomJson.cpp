#include "tests/engine/RandomJson.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>

namespace {

constexpr char16_t units[] = {u'a',   u'$',   u'"',   u'\\',  u'/',   u'u',   u'\n',
                              0x0000, 0x001F, 0x007F, 0x0085, 0x00A0, 0x2028, 0x6587,
                              0xD83D, 0xDE00, 0xD800, 0xDFFF, 0xFDD0, 0xFEFF, 0xFFFD,
                              0xFFFE, 0xFFFF, u'd',   u'8',   u'0'};

constexpr double borders[] = {0.0,
                              -0.0,
                              0.1,
                              1e6,
                              1e21,
                              1e22,
                              9007199254740992.0,
                              9007199254740994.0,
                              9223372036854775808.0,
                              -9223372036854775808.0,
                              18446744073709551616.0,
                              4611686018427387904.0,
                              std::numeric_limits<double>::denorm_min(),
                              std::numeric_limits<double>::min(),
                              std::numeric_limits<double>::max()};

quint64 bitsOf(double number)
{
    quint64 bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

} // namespace

QString RandomJson::string()
{
    QString text("");
    for (int i = below(8); i > 0; --i)
        text += QChar(below(3) == 0 ? static_cast<ushort>(m_random.bounded(0x10000))
                                    : units[below(std::size(units))]);
    return text;
}

JsonValue RandomJson::integer()
{
    const int bits = below(64);
    const quint64 border = quint64(1) << bits;
    switch (below(4)) {
    case 0:
        return static_cast<qint64>(border - 1 + m_random.bounded(3U));
    case 1:
        return static_cast<qint64>(1 - border - m_random.bounded(3U));
    case 2:
        return std::numeric_limits<qint64>::max() - below(2);
    default:
        return static_cast<qint64>(m_random.generate64()) >> bits;
    }
}

JsonValue RandomJson::finiteDouble()
{
    if (below(3) == 0)
        return borders[below(std::size(borders))];
    if (below(2) == 0)
        return std::trunc(std::ldexp(m_random.generateDouble() - 0.5, below(80)));
    const quint64 bits = m_random.generate64();
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    return std::isfinite(number) ? number : -0.5;
}

JsonValue RandomJson::wideInteger()
{
    QString digits = below(2) == 0 ? "9223372036854775808" : "-9223372036854775809";
    for (int i = below(20); i > 0; --i)
        digits += QString::number(below(10));
    return JsonValue::WideInteger{digits};
}

JsonValue RandomJson::scalar()
{
    switch (below(4)) {
    case 0:
        return below(2) == 0;
    case 1:
        return integer();
    case 2:
        return finiteDouble();
    default:
        return string();
    }
}

JsonValue RandomJson::list(int depth)
{
    JsonArray array;
    for (int i = below(depth > 3 ? 1 : 6); i > 0; --i)
        array.append(below(4) == 0 ? list(depth + 1) : scalar());
    return array;
}

JsonValue RandomJson::object(int depth)
{
    JsonObject object;
    for (int i = below(depth > 3 ? 1 : 6); i > 0; --i)
        object.insert(string(), value(depth + 1));
    return object;
}

JsonValue RandomJson::value(int depth)
{
    switch (below(8)) {
    case 0:
        return nullptr;
    case 1:
        return wideInteger();
    case 2:
    case 3: {
        JsonArray array;
        for (int i = below(depth > 3 ? 1 : 6); i > 0; --i)
            array.append(value(depth + 1));
        return array;
    }
    case 4:
    case 5:
        return object(depth);
    default:
        return scalar();
    }
}

bool isSameJson(const JsonValue &left, const JsonValue &right)
{
    if (left.isDouble())
        return right.isNumber() && bitsOf(left.toDouble()) == bitsOf(right.toDouble());
    if (left.isArray() && right.isArray()) {
        const JsonArray first = left.toArray();
        const JsonArray second = right.toArray();
        return std::equal(first.begin(), first.end(), second.begin(), second.end(),
                          [](const JsonValue &one, const JsonValue &other) {
                              return one.isDouble() == other.isDouble() && isSameJson(one, other);
                          });
    }
    if (left.isObject() && right.isObject()) {
        const JsonObject first = left.toObject();
        const JsonObject second = right.toObject();
        return std::equal(first.begin(), first.end(), second.begin(), second.end(),
                          [](const JsonMember &one, const JsonMember &other) {
                              return one.key == other.key && isSameJson(one.value, other.value);
                          });
    }
    if (left.isInteger() && right.isInteger())
        return left.toInteger() == right.toInteger();
    if (left.isWideInteger() && right.isWideInteger())
        return left.wideDigits() == right.wideDigits();
    if (left.isString() && right.isString())
        return left.toString() == right.toString();
    if (left.isBool() && right.isBool())
        return left.toBool() == right.toBool();
    return left.isNull() && right.isNull();
}
