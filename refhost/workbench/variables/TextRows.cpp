#include "refhost/workbench/variables/TextRows.h"

#include <algorithm>

namespace {

constexpr int rowsBetweenAnchors = 64;
constexpr ushort firstWide = 0x1100;

/// The end of the row that begins at `position`; counts its surrogate pairs. The innermost loop of
/// all, so it works on bare code units.
int rowEnd(const ushort *text, int size, int position, const TextRows::Widths &widths, int &pairs)
{
    const int start = position;
    int used = 0;
    while (position < size) {
        const ushort unit = text[position];
        if (unit == '\n')
            return position + 1;
        const bool isWide = unit < ' ' || unit >= firstWide;
        used += isWide ? widths.wide : widths.narrow;
        if (used > widths.row && position > start)
            return position;
        ++position;
        if ((unit & 0xfc00) == 0xd800 && position < size && (text[position] & 0xfc00) == 0xdc00) {
            ++position;
            ++pairs;
        }
    }
    return size;
}

bool endsInLineFeed(const QString &text, int position)
{
    return position > 0 && text.at(position - 1) == QLatin1Char('\n');
}

} // namespace

void TextRows::divide(const QString &text, const Widths &widths, int from)
{
    m_widths = widths;
    m_size = text.size();
    const auto behind = std::upper_bound(
        m_anchors.begin() + 1, m_anchors.end(), from,
        [](int position, const Anchor &anchor) { return position <= anchor.position; });
    m_anchors.erase(behind, m_anchors.end());
    Anchor now = m_anchors.back();
    m_count = static_cast<int>(m_anchors.size() - 1) * rowsBetweenAnchors + 1;
    const ushort *const units = text.utf16();
    for (;;) {
        const int next = rowEnd(units, m_size, now.position, m_widths, now.pairs);
        const bool hasLineFeed = next > now.position && units[next - 1] == '\n';
        now.lines += hasLineFeed ? 1 : 0;
        now.position = next;
        if (next == m_size && !hasLineFeed)
            break;
        if (m_count % rowsBetweenAnchors == 0)
            m_anchors.push_back(now);
        ++m_count;
    }
    m_pairs = now.pairs;
}

int TextRows::start(const QString &text, int row) const
{
    const int anchor = row / rowsBetweenAnchors;
    int position = m_anchors.at(static_cast<std::size_t>(anchor)).position;
    for (int i = anchor * rowsBetweenAnchors; i < row; ++i)
        position = end(text, position);
    return position;
}

int TextRows::end(const QString &text, int start) const
{
    int pairs = 0;
    return rowEnd(text.utf16(), text.size(), start, m_widths, pairs);
}

int TextRows::rowAt(const QString &text, int position) const
{
    const Anchor &anchor = anchorBefore(position);
    int row = static_cast<int>(&anchor - m_anchors.data()) * rowsBetweenAnchors;
    int begin = anchor.position;
    for (;;) {
        const int next = end(text, begin);
        if (position < next || (next == text.size() && !endsInLineFeed(text, next)))
            return row;
        if (next == begin)
            return row;
        begin = next;
        ++row;
        if (begin == text.size())
            return row;
    }
}

int TextRows::lineAt(const QString &text, int position) const
{
    const Anchor &anchor = anchorBefore(position);
    return anchor.lines + static_cast<int>(std::count(text.begin() + anchor.position,
                                                      text.begin() + position, QLatin1Char('\n')));
}

const TextRows::Anchor &TextRows::anchorBefore(int position) const
{
    const auto behind =
        std::upper_bound(m_anchors.begin() + 1, m_anchors.end(), position,
                         [](int sought, const Anchor &anchor) { return sought < anchor.position; });
    return *(behind - 1);
}
