#pragma once

#include <QTextEdit>

/// Edits any text to the unit, and shows what in it would be invisible. Looks like a line edit and
/// grows with its text. It keeps no history: undo is the owner's.
class ExactTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit ExactTextEdit(QWidget *parent = nullptr);

    /// The text, exactly as it was set, typed or pasted.
    QString text() const;

    /// Another text, not as an edit of the user. With the focus, cursor and selection stay where
    /// they can; without it the beginning is shown.
    void setText(const QString &text);

    /// Puts `text` in place of the selection, as if it was typed.
    void insertText(const QString &text);

    /// Whether Shift+Enter and the menu can make another line. Texts that have some stay.
    void setLineFeedsAllowed(bool allowed) { m_lineFeedsAllowed = allowed; }

    /// The most units it takes; a text that would be longer is handed out by `oversized` instead.
    void setMostUnits(int units) { m_mostUnits = units; }

    /// Whether its text can only be looked at; it shows that.
    void setLocked(bool locked);

    /// Looks like a label, and grows without end: no frame, no background, text to be selected.
    void setLabelLike();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has changed the text.
    void textEdited();
    /// The user has put in so much that the text would be this one. The editor keeps its own.
    void oversized(const QString &text);
    /// Enter was pressed.
    void entered();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    QMimeData *createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void fitHeight();
    int heightOf(int lines) const;
    void paintFrame();
    bool isFrameless() const { return frameStyle() == NoFrame; }

    int m_mostUnits = -1;
    bool m_lineFeedsAllowed = true;
    bool m_setting = false; ///< while the text changes by the owner
};
