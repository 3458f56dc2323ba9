#pragma once

#include <QDialog>
#include <QVariant>

#include <functional>

class QLabel;
class QVBoxLayout;

/// Takes over a value. Why it cannot, for a user; empty when it has.
using ValueSetter = std::function<QString(const QVariant &value)>;

/// A window with one value of a variable. OK hands the value over, Cancel changes nothing. Nothing
/// that was edited is lost unless the user has said so.
class ValueDialog : public QDialog
{
    Q_OBJECT

public:
    /// Without a setter the value can be looked at only.
    ValueDialog(const QString &title, ValueSetter setter, QWidget *parent);

    bool isReadOnly() const { return !m_setter; }

    /// The value as it is edited so far.
    virtual QVariant value() const = 0;
    /// Whether it has been edited.
    virtual bool isModified() const = 0;

    /// Hands the value over and closes; stays open when it is refused.
    void accept() override;
    /// Closes; when something was edited, not before it is asked for a second time.
    void reject() override;

    /// Shows a message at the bottom.
    void tell(const QString &message);

protected:
    void keyPressEvent(QKeyEvent *event) override;

    /// Where the content goes, above the message and the buttons.
    QVBoxLayout *content() { return m_content; }

    /// Takes over what is being typed in a cell. False when it is refused.
    virtual bool commitEditing() { return true; }

private:
    QWidget *createButtons();

    ValueSetter m_setter;
    QVBoxLayout *m_content;
    QLabel *m_message;
    bool m_hasWarned = false;
};
