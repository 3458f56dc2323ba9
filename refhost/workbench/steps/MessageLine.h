#pragma once

#include <QFrame>

class QLabel;

/// A line that tells what went wrong, without holding up the user; gone until there is something to
/// say.
class MessageLine : public QFrame
{
    Q_OBJECT

public:
    explicit MessageLine(QWidget *parent = nullptr);

    /// Shows the text, as it is and not as markup.
    void tell(const QString &text);
    void dismiss();

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeColors();

    QLabel *m_symbol;
    QLabel *m_text;
};
