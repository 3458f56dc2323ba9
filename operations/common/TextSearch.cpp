#include "operations/common/TextSearch.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <limits>

namespace {

/// Up to here Qt's own search has no time to lose. It also has a quirk here that has to stay: it
/// can take the second half of a surrogate pair for an unpaired one, ignoring case.
constexpr int shortText = 500;

/// How often the units of a text occur in a sample of it, those with the same low byte counted
/// together. The text has at least `smallestText` units.
class UnitSample
{
public:
    static constexpr int smallestText = 1024;

    explicit UnitSample(QStringView text)
    {
        constexpr int stretches = 8;
        constexpr int stretchSize = 32;
        for (int i = 0; i < stretches; ++i) {
            for (const QChar unit : text.mid(text.size() / stretches * i, stretchSize))
                ++m_counts[unit.cell()];
        }
    }

    int count(ushort unit) const { return m_counts[unit & 0xff]; }

private:
    std::array<int, 256> m_counts{};
};

/// The first position of `unit` at or after `from`, the size of the text without one.
int indexOfUnit(const QString &text, ushort unit, int from)
{
    // A vectorised search that ends after a few units costs more than looking at them one by one.
    constexpr int nearby = 8;
    const int nearEnd = std::min(from + nearby, text.size());
    for (int i = from; i < nearEnd; ++i) {
        if (text.at(i).unicode() == unit)
            return i;
    }
    const int position = text.indexOf(QChar(unit), nearEnd);
    return position < 0 ? text.size() : position;
}

/// The number of units from the start of `searched` that stand at `position` of `text`.
template <typename Units>
int matchedFrom(const Units &text, const Units &searched, int position)
{
    const int size = static_cast<int>(searched.size());
    int matched = 0;
    while (matched < size && searched[matched] == text[position + matched])
        ++matched;
    return matched;
}

} // namespace

int indexOfText(const QString &text, const QString &searched, int from,
                Qt::CaseSensitivity sensitivity)
{
    // Alone, unlike in a longer text, half a pair is found within a pair also when ignoring case.
    const bool isHalfPair = searched.size() == 1 && searched.at(0).isSurrogate();
    if (text.size() <= shortText || isHalfPair)
        return text.indexOf(searched, from, sensitivity);
    return TextSearch(text, searched, sensitivity).next(from);
}

TextSearch::TextSearch(const QString &text, const QString &searched,
                       Qt::CaseSensitivity sensitivity)
    : m_text(text)
    , m_searched(searched)
    , m_foldCase(sensitivity == Qt::CaseInsensitive)
{
    if (m_searched.isEmpty() || m_searched.size() > m_text.size())
        return;
    if (m_text.size() >= UnitSample::smallestText)
        m_anchor = rarestUnit();
    for (const ushort unit : variantsAt(m_anchor))
        m_lookouts.append({unit, -1});
}

int TextSearch::next(int from)
{
    const int last = m_text.size() - m_searched.size();
    if (m_searched.isEmpty())
        return from <= last ? from : -1;
    while (from <= last && !m_anchorIsFrequent) {
        const int position = nextAnchor(from + m_anchor) - m_anchor;
        if (position > last)
            return -1;
        const int matched = matchedUnits(position);
        if (matched == m_searched.size())
            return position;
        charge(position, matched);
        from = position + 1;
    }
    return from <= last ? nextAmongMany(from) : -1;
}

/// The index of the unit that is the rarest in a sample of the text; of those, the first with the
/// fewest other forms. Looks at both ends of the searched text only.
int TextSearch::rarestUnit() const
{
    constexpr int unitsAtEachEnd = 16;
    constexpr int costOfForm = 1;
    const UnitSample sample(m_text);
    int rarest = 0;
    int lowestCost = std::numeric_limits<int>::max();
    for (int i = 0; i < m_searched.size(); ++i) {
        if (i == unitsAtEachEnd)
            i = std::max(i, m_searched.size() - unitsAtEachEnd);
        int cost = 0;
        for (const ushort unit : variantsAt(i))
            cost += sample.count(unit) + costOfForm;
        if (cost > 0 && cost < lowestCost) {
            lowestCost = cost;
            rarest = i;
        }
    }
    return rarest;
}

/// The units of a text that can stand for the one at `index` of the searched text; none if they
/// depend on the unit before.
FoldedText::Variants TextSearch::variantsAt(int index) const
{
    if (!m_foldCase)
        return {m_searched.at(index).unicode()};
    if (FoldedText(m_searched).isSecondHalf(index))
        return {};
    return FoldedText::variantsOf(m_searched.at(index));
}

/// The first position at or after `from` of a unit to look out for, the size of the text without.
int TextSearch::nextAnchor(int from)
{
    int nearest = m_text.size();
    for (Lookout &lookout : m_lookouts) {
        if (lookout.position < from)
            lookout.position = indexOfUnit(m_text, lookout.unit, from);
        nearest = std::min(nearest, lookout.position);
    }
    return nearest;
}

int TextSearch::matchedUnits(int position) const
{
    return m_foldCase ? matchedFrom(FoldedText(m_text), FoldedText(m_searched), position)
                      : matchedFrom(QStringView(m_text), QStringView(m_searched), position);
}

/// Books a comparison that came to nothing. Too many of them for the way come so far, and another
/// search has to take over; for a single unit there is none better.
void TextSearch::charge(int position, int comparedUnits)
{
    constexpr int costOfComparison = 20;
    constexpr int credit = 256;
    m_wasted += comparedUnits + costOfComparison;
    m_anchorIsFrequent = m_wasted > position + credit && m_searched.size() > 1;
}

int TextSearch::nextAmongMany(int from)
{
    // With a few units only, Qt's search has nothing to lose: comparing is no more than looking.
    constexpr int fewUnits = 5;
    if (m_searched.size() <= fewUnits)
        return m_text.indexOf(m_searched, from,
                              m_foldCase ? Qt::CaseInsensitive : Qt::CaseSensitive);
    if (m_foldCase) {
        if (!m_foldedSearch)
            m_foldedSearch.emplace(FoldedText(m_text), FoldedText(m_searched));
        return m_foldedSearch->next(from);
    }
    if (!m_exactSearch)
        m_exactSearch.emplace(m_text, m_searched);
    return m_exactSearch->next(from);
}
