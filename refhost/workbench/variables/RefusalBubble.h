#pragma once

#include <QLabel>

/// Tells beside an editor why what stands in it is refused, until that is changed.
class RefusalBubble : public QLabel
{
    Q_OBJECT

public:
    /// Belongs to the editor's window.
    explicit RefusalBubble(QWidget *editor);

    /// Shows the text under the editor, or above where there is no room.
    void tell(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QWidget *m_editor;
};
