#include "refhost/workbench/document/PendingEdits.h"

#include <algorithm>

void PendingEdits::add(QObject *owner, std::function<bool()> commit)
{
    m_sources.append({owner, std::move(commit)});
}

bool PendingEdits::commit() const
{
    return std::all_of(m_sources.cbegin(), m_sources.cend(),
                       [](const Source &source) { return !source.owner || source.commit(); });
}
