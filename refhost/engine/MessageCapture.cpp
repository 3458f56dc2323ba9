#include "refhost/engine/MessageCapture.h"

#include <QtGlobal>

#include <atomic>
#include <mutex>
#include <utility>

namespace {

thread_local MessageCapture *currentCapture = nullptr;

// The handler is the process's, the captures are their threads': it is installed with the first
// capture and taken away with the last.
std::mutex handlerMutex;
int captureCount = 0;
std::atomic<QtMessageHandler> previousHandler = nullptr;

} // namespace

MessageCapture::MessageCapture()
    : m_outer(currentCapture)
{
    currentCapture = this;
    const std::lock_guard lock(handlerMutex);
    if (captureCount++ == 0)
        previousHandler = qInstallMessageHandler(&MessageCapture::handleMessage);
}

MessageCapture::~MessageCapture()
{
    {
        const std::lock_guard lock(handlerMutex);
        if (--captureCount == 0)
            qInstallMessageHandler(previousHandler);
    }
    currentCapture = m_outer;
}

QStringList MessageCapture::takeLines()
{
    return std::exchange(m_lines, {});
}

void MessageCapture::handleMessage(QtMsgType type, const QMessageLogContext &context,
                                   const QString &message)
{
    if (type == QtWarningMsg && currentCapture)
        currentCapture->m_lines.append(message);
    else if (const QtMessageHandler handler = previousHandler)
        handler(type, context, message);
}
