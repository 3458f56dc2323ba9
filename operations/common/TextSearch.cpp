#include "operations/common/TextSearch.h"

#include "operations/common/UnitSample.h"

#include <QStringView>
#include <QtAlgorithms>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace {

/// Up to here Qt's own search has no time to lose. It also has a quirk here that has to stay: it
/// can take the second half of a surrogate pair for an unpaired one when case does not count.
constexpr int shortText = 500;

/// 1 if `unit` has one of the first `count` forms, else 0: in 16 bits and without a branch, so that
/// the processor does it for many units at once.
template <int count, typename Forms>
ushort hasForm(QChar unit, const Forms &forms)
{
    ushort found = 0;
    for (std::size_t i = 0; i < count; ++i)
        found = static_cast<ushort>(found | (unit.unicode() == forms[i]));
    return found;
}

/// Whether Qt can pass over a text that is there, when case does not count, and does so in its own
/// ways: it skips by the last 255 units of the searched text and, where these begin with the second
/// half of a surrogate pair, knows nothing of the first.
bool isMissedByQt(const QString &searched)
{
    constexpr int unitsSkippedBy = 255;
    const int begin = searched.size() - unitsSkippedBy;
    return begin > 0 && FoldedText(searched).isSecondHalf(begin);
}

/// The places that are looked at together, as many as there are bits to note them.
constexpr int blockSize = 64;

using Flags = std::array<uchar, blockSize>;

/// A bit for each flag, which is 0 or 1.
quint64 packed(const Flags &flags)
{
    // Times this, the bit of the i-th byte comes to be the i-th bit of the highest byte.
    constexpr quint64 gather = 0x0102040810204080;
    quint64 bits = 0;
    for (unsigned i = 0; i < blockSize; i += 8)
        bits |= qFromLittleEndian<quint64>(flags.data() + i) * gather >> 56 << i;
    return bits;
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
    if (m_foldCase && isMissedByQt(m_searched))
        m_matcher.emplace(m_searched, sensitivity);
    else
        chooseFeatures();
}

int TextSearch::next(int from)
{
    const int last = m_text.size() - m_searched.size();
    if (m_searched.isEmpty())
        return from <= last ? from : -1;
    if (m_matcher)
        return m_matcher->indexIn(m_text, from);
    while (from <= last && !m_skips) {
        const int position = nextPlace(from, last);
        if (position > last)
            return -1;
        const int matched = matchedUnits(position);
        if (matched == m_searched.size())
            return position;
        charge(position, matched);
        from = position + 1;
    }
    return from <= last ? nextBySkipping(from) : -1;
}

/// The two units that are the rarest in a sample of the text, those with fewer forms first; the
/// first two in a short text. Looks at both ends of the searched text only.
void TextSearch::chooseFeatures()
{
    constexpr int unitsAtEachEnd = 16;
    const UnitSample sample(m_text);
    int lowest = std::numeric_limits<int>::max();
    int secondLowest = lowest;
    int first = 0;
    int second = 0;
    for (int i = 0; i < m_searched.size(); ++i) {
        if (i == unitsAtEachEnd)
            i = std::max(i, m_searched.size() - unitsAtEachEnd);
        int count = 0;
        for (const ushort unit : variantsAt(i))
            count += sample.count(unit) + 1;
        if (count > 0 && count < lowest) {
            secondLowest = std::exchange(lowest, count);
            second = std::exchange(first, i);
        } else if (count > 0 && count < secondLowest) {
            secondLowest = count;
            second = i;
        }
    }
    m_first = featureAt(first);
    m_second = featureAt(second);
    m_forms = std::max(variantsAt(first).size(), variantsAt(second).size());
    m_skips = m_forms > mostForms; // no unit has as many forms today
}

TextSearch::Feature TextSearch::featureAt(int index) const
{
    const FoldedText::Variants variants = variantsAt(index);
    Feature feature;
    feature.index = index;
    feature.forms.fill(variants.first());
    std::copy_n(variants.cbegin(), std::min(variants.size(), mostForms), feature.forms.begin());
    return feature;
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

/// The first position from `from` to `last` at which both features stand, beyond `last` without
/// one.
int TextSearch::nextPlace(int from, int last)
{
    if (from >= m_blockEnd) {
        m_places = 0;
        m_blockEnd = from;
    } else if (from > m_block) {
        m_places &= ~quint64(0) << (from - m_block);
    }
    if (m_places == 0) {
        if (m_forms == 1)
            findBlock<1>(last);
        else if (m_forms == 2)
            findBlock<2>(last);
        else
            findBlock<mostForms>(last);
    }
    return m_places == 0 ? last + 1 : m_block + static_cast<int>(qCountTrailingZeroBits(m_places));
}

/// Moves on from the end of the block to the first one with a place at which both features stand.
template <int forms>
void TextSearch::findBlock(int last)
{
    // Copies, so that the compiler sees that nothing changes and compares many units at once.
    const auto isPlace = [first = m_text.constData() + m_first.index, firstForms = m_first.forms,
                          second = m_text.constData() + m_second.index,
                          secondForms = m_second.forms](int position) -> ushort {
        return hasForm<forms>(first[position], firstForms) &
               hasForm<forms>(second[position], secondForms);
    };
    int begin = m_blockEnd;
    for (; begin <= last - blockSize + 1; begin += blockSize) {
        ushort found = 0;
        for (int i = begin; i < begin + blockSize; ++i)
            found = static_cast<ushort>(found | isPlace(i));
        if (found != 0)
            break;
    }
    Flags flags{};
    m_block = begin;
    m_blockEnd = std::min(begin + blockSize, last + 1);
    for (int i = begin, end = m_blockEnd; i < end; ++i)
        flags[static_cast<std::size_t>(i - begin)] = static_cast<uchar>(isPlace(i));
    m_places = packed(flags);
}

int TextSearch::matchedUnits(int position) const
{
    // The two units that were looked for are all there are.
    if (m_searched.size() <= 2 && !m_foldCase)
        return m_searched.size();
    return m_foldCase ? matchedFrom(FoldedText(m_text), FoldedText(m_searched), position)
                      : matchedFrom(QStringView(m_text), QStringView(m_searched), position);
}

/// Books a comparison that came to nothing. Too many of them for the way come so far, and another
/// search has to take over; for a single unit there is none better.
void TextSearch::charge(int position, int comparedUnits)
{
    constexpr int costOfComparison = 40;
    constexpr int credit = 512;
    m_wasted += comparedUnits + costOfComparison;
    m_skips = m_wasted > position + credit && m_searched.size() > 1;
}

int TextSearch::nextBySkipping(int from)
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
