#include "refhost/validator/trials/MessageLog.h"

#include <atomic>
#include <mutex>
#include <utility>

namespace {

thread_local MessageLog *currentLog = nullptr;

// The handler is the process's, the logs are their threads': it is installed with the first log and
// taken away with the last.
std::mutex handlerMutex;
int logCount = 0;
std::atomic<QtMessageHandler> previousHandler = nullptr;

QString placeIn(const QMessageLogContext &context)
{
    if (context.file)
        return QStringLiteral("%1:%2").arg(QString::fromLocal8Bit(context.file)).arg(context.line);
    if (context.function)
        return QString::fromLocal8Bit(context.function);
    return context.line == 0 ? QString() : QStringLiteral("line %1").arg(context.line);
}

} // namespace

QString LoggedMessage::typeWord() const
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        break;
    }
    return QStringLiteral("fatal");
}

bool LoggedMessage::operator==(const LoggedMessage &other) const
{
    return type == other.type && text == other.text;
}

MessageLog::MessageLog()
    : m_outer(currentLog)
{
    currentLog = this;
    const std::lock_guard lock(handlerMutex);
    if (logCount++ == 0)
        previousHandler = qInstallMessageHandler(&MessageLog::handleMessage);
}

MessageLog::~MessageLog()
{
    {
        const std::lock_guard lock(handlerMutex);
        if (--logCount == 0)
            qInstallMessageHandler(previousHandler);
    }
    currentLog = m_outer;
}

QList<LoggedMessage> MessageLog::take()
{
    return std::exchange(m_messages, {});
}

void MessageLog::handleMessage(QtMsgType type, const QMessageLogContext &context,
                               const QString &text)
{
    if (currentLog && type != QtFatalMsg)
        currentLog->m_messages.append({type, text, placeIn(context)});
    else if (const QtMessageHandler handler = previousHandler)
        handler(type, context, text);
}
