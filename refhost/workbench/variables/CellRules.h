#pragma once

#include <QModelIndex>
#include <QString>

/// What a table whose cells are edited as text tells of them, beside the usual roles.
enum CellRole {
    DetailRole = Qt::UserRole, ///< a text that is shown quietly at the end of the cell
    ChoicesRole,               ///< the texts to choose from, where there are such
    OpensRole ///< whether the value is edited in a window of its own instead of in the cell
};

/// What may be typed into the cells of a table.
class CellRules
{
public:
    virtual ~CellRules() = default;

    /// Why the text cannot become the content of the cell, for a user; empty when it can.
    virtual QString refusal(const QModelIndex &cell, const QString &input) const = 0;
};
