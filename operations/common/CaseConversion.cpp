#include "operations/common/CaseConversion.h"

#include <algorithm>

namespace {

using Conversion = QString (*)(const QString &text);

/// Whether `unit` lies in [first, last]. In 16 bits and without a branch, so that the processor
/// does it for many units at once.
constexpr ushort isWithin(ushort unit, ushort first, ushort last)
{
    return static_cast<ushort>(static_cast<ushort>(unit - first) <= last - first);
}

/// None of ASCII, none of the Chinese characters: they are told apart from letters that grow with
/// the least effort.
constexpr ushort isNearGrowing(ushort unit)
{
    return isWithin(unit, 0xDF, 0x1FFF) | isWithin(unit, 0xFB00, 0xFB1F);
}

/// All letters that grow, and some between them. Were one missing here, the result would be the
/// same, only late.
constexpr ushort mayGrow(ushort unit)
{
    return isWithin(unit, 0xDF, 0xDF) | isWithin(unit, 0x130, 0x149) |
           isWithin(unit, 0x1F0, 0x1F0) | isWithin(unit, 0x390, 0x390) |
           isWithin(unit, 0x3B0, 0x3B0) | isWithin(unit, 0x587, 0x587) |
           isWithin(unit, 0x1E96, 0x1FFF) | isWithin(unit, 0xFB00, 0xFB1F);
}

template <typename Predicate>
bool hasUnit(const QString &text, Predicate predicate)
{
    ushort found = 0;
    for (const QChar unit : text)
        found = static_cast<ushort>(found | predicate(unit.unicode()));
    return found != 0;
}

bool canGrow(const QString &text)
{
    return hasUnit(text, [](ushort unit) { return isNearGrowing(unit); }) &&
           hasUnit(text, [](ushort unit) { return mayGrow(unit); });
}

/// Whether a first half of a surrogate pair is followed by something else than a second half. Qt
/// takes the two for a pair all the same, and then all that follows depends on what was before.
bool hasBrokenPair(const QString &text)
{
    const auto isBroken = [](QChar unit, QChar next) {
        return unit.isHighSurrogate() && !next.isLowSurrogate();
    };
    return std::adjacent_find(text.cbegin(), text.cend(), isBroken) != text.cend();
}

/// The end of a piece that begins at `begin`; no pair is cut in two.
int endOfPiece(const QString &text, int begin)
{
    constexpr int pieceSize = 2048;
    if (text.size() - begin <= pieceSize)
        return text.size();
    const int end = begin + pieceSize;
    return text.at(end - 1).isHighSurrogate() ? end + 1 : end;
}

/// Converts piece by piece: for every letter that grows Qt moves all the units behind it, which
/// takes quadratic time in a long text.
QString convertedInPieces(const QString &text, Conversion convert)
{
    QString result;
    result.reserve(text.size());
    for (int begin = 0, end = 0; begin < text.size(); begin = end) {
        end = endOfPiece(text, begin);
        result += convert(QString::fromRawData(text.constData() + begin, end - begin));
    }
    return result;
}

QString converted(const QString &text, Conversion convert)
{
    const bool inPieces = canGrow(text) && !hasBrokenPair(text);
    return inPieces ? convertedInPieces(text, convert) : convert(text);
}

} // namespace

QString toUpperText(const QString &text)
{
    return converted(text, [](const QString &piece) { return piece.toUpper(); });
}

QString toLowerText(const QString &text)
{
    return converted(text, [](const QString &piece) { return piece.toLower(); });
}
