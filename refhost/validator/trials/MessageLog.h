#pragma once

#include <QList>
#include <QString>

/// A line that went through Qt's message logger.
struct LoggedMessage
{
    QtMsgType type = QtWarningMsg;
    QString text;
    QString place; ///< the file, line or function it names, empty when none

    /// The word for its type: "debug", "info", "warning", "critical" or "fatal".
    QString typeWord() const;

    bool operator==(const LoggedMessage &other) const;
};

/// Collects all that this thread logs while the object lives; logs on one thread nest. Messages of
/// other threads go where they went before, and so does one that ends the program.
class MessageLog
{
public:
    MessageLog();
    ~MessageLog();

    /// The messages so far, oldest first; they are forgotten by this call.
    QList<LoggedMessage> take();

private:
    Q_DISABLE_COPY_MOVE(MessageLog)

    static void handleMessage(QtMsgType type, const QMessageLogContext &context,
                              const QString &text);

    MessageLog *m_outer;
    QList<LoggedMessage> m_messages;
};
