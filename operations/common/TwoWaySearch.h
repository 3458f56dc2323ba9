#pragma once

#include <algorithm>

/// Finds a text in another in time linear in both and without memory of its own, whatever they
/// hold: the two-way algorithm of Crochemore and Perrin. The searched text is cut at a place where
/// a local repetition is as long as a global one; the part behind the cut is compared forwards,
/// then the part before it backwards, and each mismatch tells how far it is safe to move on.
///
/// `Units` are what the texts are made of: a class with `size()` and `operator[](int)`, whose
/// values compare with `==` and `<`. The search keeps a copy of both, so they should be views.
template <typename Units>
class TwoWaySearch
{
public:
    /// `searched` must not be empty.
    TwoWaySearch(const Units &text, const Units &searched);

    /// The first position at or after `from` at which the searched text stands, -1 without one.
    int next(int from) const;

private:
    /// The end of a text that is the greatest of all its ends, in one order of the units or in the
    /// reverse, and the length after which it repeats.
    struct MaximalSuffix
    {
        int begin;
        int period;
    };

    template <typename Less>
    MaximalSuffix maximalSuffix(Less less) const;

    bool repeatsAfterPeriod() const;
    /// The first index in [from, size) at which the searched text differs from the text at
    /// `position`, its size without one.
    int mismatchBehind(int position, int from) const;
    /// Whether the units of the searched text in [from, cut) stand in the text at `position`.
    bool matchesBefore(int position, int from) const;

    static int size(const Units &units) { return static_cast<int>(units.size()); }

    Units m_text;
    Units m_searched;
    int m_cut = 0;
    int m_period = 0;
    bool m_repeats = false; ///< whether the whole searched text repeats after the period
};

template <typename Units>
TwoWaySearch<Units>::TwoWaySearch(const Units &text, const Units &searched)
    : m_text(text)
    , m_searched(searched)
{
    const MaximalSuffix ascending = maximalSuffix([](auto a, auto b) { return a < b; });
    const MaximalSuffix descending = maximalSuffix([](auto a, auto b) { return b < a; });
    const MaximalSuffix &later = ascending.begin > descending.begin ? ascending : descending;
    m_cut = later.begin;
    m_period = later.period;
    m_repeats = repeatsAfterPeriod();
    if (!m_repeats)
        m_period = std::max(m_cut, size(m_searched) - m_cut) + 1;
}

template <typename Units>
int TwoWaySearch<Units>::next(int from) const
{
    const int searchedSize = size(m_searched);
    const int last = size(m_text) - searchedSize;
    int known = 0; // the units at the start that are known to match, after a move by the period
    for (int position = from; position <= last;) {
        const int mismatch = mismatchBehind(position, std::max(m_cut, known));
        if (mismatch < searchedSize) {
            position += mismatch - m_cut + 1;
            known = 0;
            continue;
        }
        if (matchesBefore(position, known))
            return position;
        position += m_period;
        known = m_repeats ? searchedSize - m_period : 0;
    }
    return -1;
}

template <typename Units>
template <typename Less>
typename TwoWaySearch<Units>::MaximalSuffix TwoWaySearch<Units>::maximalSuffix(Less less) const
{
    MaximalSuffix best{0, 1};
    int candidate = 1;
    int matched = 0;
    while (candidate + matched < size(m_searched)) {
        const auto challenger = m_searched[candidate + matched];
        const auto champion = m_searched[best.begin + matched];
        if (less(challenger, champion)) {
            candidate += matched + 1;
            matched = 0;
            best.period = candidate - best.begin;
        } else if (less(champion, challenger)) {
            best = {candidate, 1};
            ++candidate;
            matched = 0;
        } else if (matched + 1 == best.period) {
            candidate += best.period;
            matched = 0;
        } else {
            ++matched;
        }
    }
    return best;
}

template <typename Units>
bool TwoWaySearch<Units>::repeatsAfterPeriod() const
{
    for (int i = 0; i < m_cut; ++i) {
        if (!(m_searched[i] == m_searched[i + m_period]))
            return false;
    }
    return true;
}

template <typename Units>
int TwoWaySearch<Units>::mismatchBehind(int position, int from) const
{
    int i = from;
    while (i < size(m_searched) && m_searched[i] == m_text[position + i])
        ++i;
    return i;
}

template <typename Units>
bool TwoWaySearch<Units>::matchesBefore(int position, int from) const
{
    int i = m_cut;
    while (i > from && m_searched[i - 1] == m_text[position + i - 1])
        --i;
    return i <= from;
}
