#include "tests/support/QuietTest.h"

#include <QtTest>

#include <mutex>
#include <utility>

namespace {

std::mutex linesMutex;
QStringList lines;
QtMessageHandler previousHandler = nullptr;

bool isPlain(const QMessageLogContext &context)
{
    return !context.file && context.line == 0 && !context.function && context.category &&
           qstrcmp(context.category, "default") == 0;
}

void collect(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // The platform without a screen tells what it cannot do whenever a window opens.
    if (message.startsWith(QLatin1String("This plugin does not support ")))
        return;
    const std::lock_guard lock(linesMutex);
    if (type != QtWarningMsg)
        lines.append(QStringLiteral("not a warning: ") + message);
    else if (!isPlain(context))
        lines.append(QStringLiteral("with a context: ") + message);
    else
        lines.append(message);
}

} // namespace

QStringList QuietTest::takeWarnings()
{
    const std::lock_guard lock(linesMutex);
    return std::exchange(lines, {});
}

void QuietTest::init()
{
    takeWarnings();
    previousHandler = qInstallMessageHandler(collect);
}

void QuietTest::cleanup()
{
    qInstallMessageHandler(previousHandler);
    const QStringList unexpected = takeWarnings();
    QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join(QStringLiteral(" / "))));
}
