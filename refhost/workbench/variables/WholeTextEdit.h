#pragma once

#include "refhost/workbench/variables/TextHistory.h"
#include "refhost/workbench/variables/TextRows.h"

#include <QAbstractScrollArea>
#include <QString>
#include <QTextLayout>
#include <QTimer>
#include <QVector>

/// Edits a text of any size exactly as it is: every code unit stays what it is, those that cannot
/// be seen have signs in their place. Only the rows in sight are laid out. Positions and lengths
/// are in UTF-16 code units; the cursor never stands within a surrogate pair.
class WholeTextEdit : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit WholeTextEdit(QWidget *parent = nullptr);

    const QString &text() const { return m_text; }
    /// Another text, without a history.
    void setText(const QString &text);
    /// Replaces the whole text as an edit that can be undone.
    void replaceText(const QString &text);

    bool isReadOnly() const { return m_isReadOnly; }
    void setReadOnly(bool readOnly);
    /// Whether the text has been edited since `setText`.
    bool isModified() const { return m_history.hasEdits(); }

    int cursor() const { return m_cursor; }
    /// The line the cursor is in, counted from 0, and its place within.
    int line() const;
    int column() const;
    int characters() const { return m_rows.characters(); }

    /// Moves the cursor, and shows it; with `keepAnchor` what is between becomes selected.
    void setCursor(int position, bool keepAnchor = false);
    void select(int position, int length);
    QString selectedText() const;

    /// Puts a text in the place of the selection, or at the cursor.
    void insert(const QString &text);

    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

public Q_SLOTS:
    void undo();
    void redo();
    void cut();
    void copy();
    void paste();
    void selectAll();

Q_SIGNALS:
    void textChanged();
    void cursorMoved();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    int selectionStart() const { return qMin(m_cursor, m_anchor); }
    int selectionEnd() const { return qMax(m_cursor, m_anchor); }
    void replace(int position, int length, const QString &inserted);
    void apply(const TextHistory::Edit &edit);
    void erase(int from, int to);
    bool handleShortcut(QKeyEvent *event);
    bool handleEditShortcut(QKeyEvent *event);
    bool handleMove(QKeyEvent *event);
    bool handleErasure(QKeyEvent *event);
    int vertical(int rows) const;
    int positionAt(const QPoint &point) const;
    int rowHeight() const;
    int visibleRows() const;
    TextRows::Widths widths() const;
    void divide();
    void updateScrollBar();
    void showCursor();
    void layOut(QTextLayout &layout, int start, int end) const;
    QVector<QTextLayout::FormatRange> formats(const QString &shown, int start) const;
    QVector<QTextLayout::FormatRange> selectionIn(int start, int end) const;
    int cursorX() const;
    QRect cursorRect() const;

    QString m_text;
    TextRows m_rows;
    TextRows::Widths m_widths;
    QTimer m_division; ///< of a long text, a moment after the width has changed
    int m_cursor = 0;
    int m_anchor = 0;
    bool m_isReadOnly = false;
    QString m_preedit; ///< what an input method shows at the cursor
    TextHistory m_history;
};
