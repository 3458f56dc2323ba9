#include "refhost/validator/trials/RandomSource.h"

#include <limits>

namespace {

QRandomGenerator seeded(quint32 seed, const QString &theme)
{
    const QByteArray bytes = theme.toUtf8();
    const quint32 numbers[] = {seed, qChecksum(bytes.constData(), static_cast<uint>(bytes.size()))};
    return QRandomGenerator(numbers);
}

/// Ranges of code points that programs stumble over: control characters with NUL, letters that
/// change their length with their case, combining and bidirectional marks, halves of surrogate
/// pairs, and such that are no characters. Not the byte order mark, which Qt's JSON reader takes
/// away where a text begins with it.
const QList<QPair<int, int>> strangeRanges{
    {0x00, 0x1F},     {0x7F, 0xA0},     {0xDF, 0xDF},     {0x130, 0x131},   {0x1C4, 0x1CC},
    {0x300, 0x340},   {0x3A3, 0x3C3},   {0x5D0, 0x5EA},   {0x627, 0x64A},   {0x660, 0x669},
    {0x1100, 0x1112}, {0x1E9E, 0x1E9E}, {0x200B, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069},
    {0x4E00, 0x4E20}, {0xD800, 0xDBFF}, {0xDC00, 0xDFFF}, {0xFB00, 0xFB06}, {0xFFFD, 0xFFFF}};

} // namespace

RandomSource::RandomSource(quint32 seed, const QString &theme)
    : m_random(seeded(seed, theme))
{
}

QString RandomSource::text()
{
    constexpr int shortText = 12;
    constexpr int longText = 3000;
    switch (below(10)) {
    case 0:
        return {};
    case 1:
        return numberText();
    case 2:
    case 3:
        return strangeText();
    case 4:
        return oneOf<QString>({QStringLiteral("$"), QStringLiteral("%1"), QStringLiteral("\\n"),
                               QStringLiteral("a"), QStringLiteral(","), QStringLiteral(" "),
                               QStringLiteral("文本"), QStringLiteral("ß"),
                               QStringLiteral("<b>&amp;</b>"), QStringLiteral("aaaa")});
    case 5:
        if (onceIn(8))
            return QStringLiteral("aab").repeated(below(longText) / 3);
        [[fallthrough]];
    default:
        break;
    }
    QString text;
    for (int i = below(shortText); i >= 0; --i)
        text.append(QLatin1Char(static_cast<char>(' ' + below('~' - ' '))));
    return text;
}

QString RandomSource::strangeText()
{
    constexpr int mostCharacters = 12;
    QString text;
    for (int i = below(mostCharacters); i >= 0; --i) {
        if (onceIn(5)) {
            const uint astral = 0x1F600 + static_cast<uint>(below(0x40));
            text.append(QString::fromUcs4(&astral, 1));
            continue;
        }
        const QPair<int, int> range = oneOf(strangeRanges);
        text.append(QChar(range.first + below(range.second - range.first + 1)));
    }
    return text;
}

QString RandomSource::numberText()
{
    static const QList<QString> numbers =
        QStringLiteral(
            "0|1|2|3|7|-1|-2|2.5|-0.5|007| 12 |1e3|1e400|-1e400|1e-320|nan|inf|-inf|0x10|1,000|12a|٣|"
            "100000|2147483647|-2147483648|2147483648|4294967296|9223372036854775808|1e18|.5|5.|+4|--1")
            .split(QLatin1Char('|'));
    return onceIn(4) ? QString::number(real()) : oneOf(numbers);
}

int RandomSource::integer()
{
    using Limits = std::numeric_limits<int>;
    switch (below(6)) {
    case 0:
        return oneOf<int>({Limits::max(), Limits::min(), Limits::max() - 1, -1, 65536});
    case 1:
        // What is asked for by such a number fits into any memory, by the largest into none: what a
        // step does must not depend on how much there is.
        return below(200000) - 100000;
    default:
        return below(24) - 4;
    }
}

double RandomSource::real()
{
    using Limits = std::numeric_limits<double>;
    switch (below(6)) {
    case 0:
        return oneOf<double>({Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(),
                              Limits::max(), Limits::denorm_min(), 0.1, 1e15, 2147483648.5});
    case 1:
        return (m_random.generateDouble() - 0.5) * 1e6;
    default:
        return below(80) / 8.0 - 2;
    }
}

QVariantList RandomSource::list()
{
    constexpr int mostElements = 8;
    if (onceIn(12))
        return nested();
    QVariantList list;
    for (int i = below(mostElements); i > 0; --i)
        list.append(element(0));
    return list;
}

QVariantList RandomSource::table()
{
    constexpr int mostRows = 5;
    QVariantList rows;
    for (int i = below(mostRows); i > 0; --i)
        rows.append(QVariant(list()));
    return rows;
}

QVariant RandomSource::element(int depth)
{
    switch (below(6)) {
    case 0:
        return integer();
    case 1:
        // A whole number in a list of a task file is an integer.
        return below(100) + 0.5;
    case 2:
        return onceIn(2);
    case 3:
        if (depth < 3) {
            QVariantList list;
            for (int i = below(3); i > 0; --i)
                list.append(element(depth + 1));
            return list;
        }
        [[fallthrough]];
    default:
        return text();
    }
}

QVariantList RandomSource::nested()
{
    // A task file can be no deeper than about a thousand.
    constexpr int mostLevels = 900;
    QVariantList list{text()};
    for (int i = below(mostLevels); i > 0; --i)
        list = onceIn(10) ? QVariantList{text(), QVariant(list)} : QVariantList{QVariant(list)};
    return list;
}
