#include "refhost/workbench/variables/TextHistory.h"

void TextHistory::add(const Edit &edit)
{
    m_edits.resize(m_done);
    if (mergesWithLast(edit)) {
        m_edits.last().inserted += edit.inserted;
    } else {
        m_edits.append(edit);
        ++m_done;
    }
}

bool TextHistory::mergesWithLast(const Edit &edit) const
{
    if (m_edits.isEmpty() || !edit.removed.isEmpty() || edit.inserted.size() != 1)
        return false;
    const Edit &last = m_edits.constLast();
    return last.removed.isEmpty() && last.position + last.inserted.size() == edit.position &&
           !last.inserted.endsWith(QLatin1Char('\n'));
}

void TextHistory::clear()
{
    m_edits.clear();
    m_done = 0;
}

std::optional<TextHistory::Edit> TextHistory::undo()
{
    if (m_done == 0)
        return std::nullopt;
    const Edit &edit = m_edits.at(--m_done);
    return Edit{edit.position, edit.inserted, edit.removed};
}

std::optional<TextHistory::Edit> TextHistory::redo()
{
    if (m_done == m_edits.size())
        return std::nullopt;
    return m_edits.at(m_done++);
}
