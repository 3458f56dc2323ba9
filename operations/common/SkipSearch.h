#pragma once

#include "operations/common/TwoWaySearch.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <optional>

/// Finds a text of more than a few units in another. Looks at the last two units of the place where
/// the searched text might stand, and skips as far as these two allow: in ordinary texts most of
/// the units are never looked at. Where comparing comes to nothing too often it goes on with
/// `TwoWaySearch`, so that it takes linear time whatever the texts hold.
///
/// `Units` are what the texts are made of, as for `TwoWaySearch`.
template <typename Units>
class SkipSearch
{
public:
    /// `searched` has at least two units.
    SkipSearch(const Units &text, const Units &searched);

    /// The first position at or after `from` at which the searched text stands, -1 without one.
    /// `from` is never less than in the call before.
    int next(int from);

private:
    static constexpr int slotCount = 512;

    template <typename Unit>
    static uint slotOf(Unit first, Unit second)
    {
        return ((static_cast<uint>(first) << 3) ^ static_cast<uint>(second)) % slotCount;
    }
    static uint slotOf(QChar first, QChar second)
    {
        return slotOf(first.unicode(), second.unicode());
    }

    void fillSkips();
    int nextPlace(int from, int last) const;
    int matchedUnits(int position) const;
    void charge(int position, int comparedUnits);

    Units m_text;
    Units m_searched;
    int m_size;
    std::array<ushort, slotCount> m_skips; ///< by the last two units; 0 where they may be the end
    int m_skipAfterEnd = 1;                ///< how far to go on from a place that does not match
    qint64 m_wasted = 0;                   ///< units compared for nothing
    std::optional<TwoWaySearch<Units>> m_linearSearch;
};

template <typename Units>
SkipSearch<Units>::SkipSearch(const Units &text, const Units &searched)
    : m_text(text)
    , m_searched(searched)
    , m_size(static_cast<int>(searched.size()))
{
    fillSkips();
}

template <typename Units>
int SkipSearch<Units>::next(int from)
{
    const int last = static_cast<int>(m_text.size()) - m_size;
    while (!m_linearSearch) {
        const int position = nextPlace(from, last);
        if (position > last)
            return -1;
        const int matched = matchedUnits(position);
        if (matched == m_size)
            return position;
        charge(position, matched);
        from = position + m_skipAfterEnd;
    }
    return m_linearSearch->next(from);
}

template <typename Units>
void SkipSearch<Units>::fillSkips()
{
    // Of a long text its end will do; it is what keeps the skips within their type.
    constexpr int longestSkip = 4096;
    const int end = m_size - 2;
    const int begin = std::max(0, end - longestSkip);
    m_skips.fill(static_cast<ushort>(end - begin + 1));
    m_skipAfterEnd = end - begin + 1;
    const uint endSlot = slotOf(m_searched[end], m_searched[end + 1]);
    for (int i = begin; i < end; ++i) {
        const uint slot = slotOf(m_searched[i], m_searched[i + 1]);
        m_skips[slot] = static_cast<ushort>(end - i);
        if (slot == endSlot)
            m_skipAfterEnd = end - i;
    }
    m_skips[endSlot] = 0;
}

/// The first position at or after `from` whose last two units may be those of the searched text.
template <typename Units>
int SkipSearch<Units>::nextPlace(int from, int last) const
{
    const int end = m_size - 2;
    int position = from;
    while (position <= last) {
        const int skip = m_skips[slotOf(m_text[position + end], m_text[position + end + 1])];
        if (skip == 0)
            break;
        position += skip;
    }
    return position;
}

template <typename Units>
int SkipSearch<Units>::matchedUnits(int position) const
{
    int matched = 0;
    while (matched < m_size && m_searched[matched] == m_text[position + matched])
        ++matched;
    return matched;
}

/// Books a comparison that came to nothing; too many of them, and the search goes on linearly.
template <typename Units>
void SkipSearch<Units>::charge(int position, int comparedUnits)
{
    constexpr int costOfComparison = 2;
    constexpr int credit = 512;
    m_wasted += comparedUnits + costOfComparison;
    if (m_wasted > position + credit)
        m_linearSearch.emplace(m_text, m_searched);
}
