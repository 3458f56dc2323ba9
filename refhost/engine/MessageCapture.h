#pragma once

#include <QString>
#include <QStringList>

/// Collects the warnings that this thread logs while the object lives; captures on one thread nest.
/// Messages of other threads and of other severities go where they went before.
class MessageCapture
{
public:
    MessageCapture();
    ~MessageCapture();

    /// The lines so far, oldest first; they are forgotten by this call.
    QStringList takeLines();

private:
    Q_DISABLE_COPY_MOVE(MessageCapture)

    static void handleMessage(QtMsgType type, const QMessageLogContext &context,
                              const QString &message);

    MessageCapture *m_outer;
    QStringList m_lines;
};
