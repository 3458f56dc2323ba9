#include "refhost/workbench/catalog/CatalogFilter.h"

#include "refhost/workbench/catalog/CatalogModel.h"

#include <algorithm>

namespace {

bool containsAll(const QString &text, const QStringList &words)
{
    return std::all_of(words.cbegin(), words.cend(), [&text](const QString &word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace

void CatalogFilter::setText(const QString &text)
{
    m_words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    invalidateFilter();
}

QModelIndex CatalogFilter::firstMatch() const
{
    QModelIndex first;
    for (int i = 0; i < rowCount(); ++i) {
        const QModelIndex group = index(i, 0);
        for (int row = 0; row < rowCount(group); ++row) {
            const QModelIndex candidate = index(row, 0, group);
            if (candidate.data(CatalogRole::TypeId).toString().isEmpty())
                continue;
            if (containsAll(candidate.data(CatalogRole::Names).toString(), m_words))
                return candidate;
            if (!first.isValid())
                first = candidate;
        }
    }
    return first;
}

bool CatalogFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QModelIndex source = sourceModel()->index(row, 0, parent);
    if (!parent.isValid()) {
        // A group is there for the rows in it.
        for (int i = 0; i < sourceModel()->rowCount(source); ++i) {
            if (filterAcceptsRow(i, source))
                return true;
        }
        return false;
    }
    const QString text = source.data(CatalogRole::Names).toString() + QLatin1Char('\n') +
                         source.data(CatalogRole::Labels).toString();
    return containsAll(text, m_words);
}
