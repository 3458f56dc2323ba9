#pragma once

#include <QLineEdit>
#include <QPersistentModelIndex>

class RefusalBubble;

/// The editor of one cell: a line that keeps every character that is typed or pasted into it.
class CellEdit : public QLineEdit
{
    Q_OBJECT

public:
    CellEdit(const QModelIndex &cell, QWidget *parent);

    QModelIndex cell() const { return m_cell; }

    /// Shows the text that the edit begins with. Later calls do nothing, so that what a user has
    /// typed stays when the model changes.
    void begin(const QString &text);

    /// Whether the text is another one than it was at the beginning.
    bool isChanged() const { return text() != m_first; }

    /// Tells beside the line why its text is refused, until it is changed.
    void refuse(const QString &reason);

private:
    RefusalBubble *m_bubble = nullptr; ///< belongs to the window, goes with this line
    QPersistentModelIndex m_cell;
    QString m_first;
    bool m_hasBegun = false;
};
