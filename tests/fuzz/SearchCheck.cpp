#include "tests/fuzz/SearchCheck.h"

#include "operations/common/CaseConversion.h"
#include "operations/common/TextSearch.h"

#include <QStringMatcher>
#include <QVector>
#include <QtDebug>

namespace {

constexpr int mostUnits = 6000;

struct Search
{
    QString text;
    QString searched;
    Qt::CaseSensitivity sensitivity = Qt::CaseSensitive;
};

/// The searched text is a part of the text, mostly; with a few units changed, now and then.
Search makeSearch(ByteSource &source)
{
    Search search;
    search.sensitivity = source.takeBool() ? Qt::CaseInsensitive : Qt::CaseSensitive;
    const int kind = source.takeBelow(4);
    const int begin = source.takeByte() * 8;
    const int size = source.takeByte() * (1 + source.takeBelow(4));
    const QString other = source.takeText(200);
    search.text = source.takeText(mostUnits);
    search.searched = kind == 0 ? other : search.text.mid(begin, size);
    if (kind == 1 && !search.searched.isEmpty())
        search.searched[search.searched.size() / 2] = other.isEmpty() ? QChar('b') : other.at(0);
    if (kind == 2)
        search.text += search.text.repeated(1 + source.takeBelow(8)) + search.searched;
    return search;
}

/// All occurrences that `next`, given a start, finds without overlaps.
template <typename Next>
QVector<int> all(const Search &search, Next next)
{
    QVector<int> positions;
    const int step = qMax(1, search.searched.size());
    for (int i = next(0); i >= 0; i = next(i + step))
        positions.append(i);
    return positions;
}

template <typename Algorithm, typename Units>
QVector<int> allBy(const Search &search)
{
    Algorithm algorithm{Units(QStringView(search.text)), Units(QStringView(search.searched))};
    return all(search, [&](int from) { return algorithm.next(from); });
}

QString describe(const char *what, const Search &search)
{
    QString text;
    QDebug(&text) << what << search.text << search.searched << search.sensitivity;
    return text;
}

QString checkOccurrences(const Search &search)
{
    const QStringMatcher matcher(search.searched, search.sensitivity);
    const QVector<int> expected =
        all(search, [&](int from) { return matcher.indexIn(search.text, from); });
    TextSearch textSearch(search.text, search.searched, search.sensitivity);
    if (all(search, [&](int from) { return textSearch.next(from); }) != expected)
        return describe("all", search);
    if (search.searched.size() < 2)
        return {};
    const bool folded = search.sensitivity == Qt::CaseInsensitive;
    const auto skip = folded ? allBy<SkipSearch<FoldedText>, FoldedText>(search)
                             : allBy<SkipSearch<QStringView>, QStringView>(search);
    const auto twoWay = folded ? allBy<TwoWaySearch<FoldedText>, FoldedText>(search)
                               : allBy<TwoWaySearch<QStringView>, QStringView>(search);
    if (skip != expected)
        return describe("by skipping", search);
    return twoWay != expected ? describe("two-way", search) : QString();
}

} // namespace

QString checkSearch(ByteSource source)
{
    const Search search = makeSearch(source);
    const int from = source.takeByte() * 16;
    if (indexOfText(search.text, search.searched, from, search.sensitivity) !=
        search.text.indexOf(search.searched, from, search.sensitivity))
        return describe("first", search);
    if (toUpperText(search.text) != search.text.toUpper())
        return describe("upper case", search);
    if (toLowerText(search.text) != search.text.toLower())
        return describe("lower case", search);
    return checkOccurrences(search);
}
