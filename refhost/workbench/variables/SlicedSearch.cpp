#include "refhost/workbench/variables/SlicedSearch.h"

SlicedSearch::SlicedSearch(const QString &text, const QString &sought, int from,
                           Direction direction)
    : m_text(text)
    , m_sought(sought)
    , m_direction(direction)
    , m_fallback(sought.size() + 1, 0)
    , m_from(direction == Direction::Forward ? from : text.size() - from)
    , m_next(m_from)
{
    if (sought.isEmpty() || sought.size() > text.size())
        m_state = State::NotFound;
    int matched = 0;
    for (int i = 1; i < sought.size(); ++i) {
        while (matched > 0 && soughtAt(i) != soughtAt(matched))
            matched = m_fallback.at(matched);
        if (soughtAt(i) == soughtAt(matched))
            ++matched;
        m_fallback[i + 1] = matched;
    }
}

SlicedSearch::State SlicedSearch::advance(int units)
{
    for (; units > 0 && m_state == State::Searching; --units) {
        if (m_next == m_text.size()) {
            wrap();
            continue;
        }
        const ushort unit = unitAt(m_next);
        while (m_matched > 0 && unit != soughtAt(m_matched))
            m_matched = m_fallback.at(m_matched);
        if (unit == soughtAt(m_matched))
            ++m_matched;
        ++m_next;
        if (m_matched == m_sought.size()) {
            m_state = State::Found;
            m_match = m_direction == Direction::Forward ? m_next - m_sought.size()
                                                        : m_text.size() - m_next;
        } else if (m_hasWrapped && m_next >= m_from + m_sought.size()) {
            m_state = State::NotFound;
        }
    }
    return m_state;
}

ushort SlicedSearch::unitAt(int i) const
{
    return m_text.at(m_direction == Direction::Forward ? i : m_text.size() - 1 - i).unicode();
}

ushort SlicedSearch::soughtAt(int i) const
{
    return m_sought.at(m_direction == Direction::Forward ? i : m_sought.size() - 1 - i).unicode();
}

void SlicedSearch::wrap()
{
    if (m_hasWrapped) {
        m_state = State::NotFound;
        return;
    }
    m_hasWrapped = true;
    m_next = 0;
    m_matched = 0;
}
