#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

/// Leaves the rows of the catalogue in which all the words of a filter stand, and their groups.
class CatalogFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// The words, with white space between them; case does not matter.
    void setText(const QString &text);
    bool isActive() const { return !m_words.isEmpty(); }

    /// The first operation that is called by the words, or else the first that is left; invalid
    /// when there is none.
    QModelIndex firstMatch() const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList m_words;
};
