#include "refhost/workbench/options/Screenshot.h"

#include "refhost/engine/FileBytes.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QWidget>

namespace {

/// Lets the window come to rest: layouts, and what panels put off until there is nothing to do.
void settle()
{
    constexpr int settleMilliseconds = 400;
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < settleMilliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

} // namespace

std::optional<Problem> writeScreenshot(QWidget &window, const QSize &size, const QString &file)
{
    window.setAttribute(Qt::WA_DontShowOnScreen);
    // What a window would rather be does not count.
    window.setFixedSize(size);
    window.show();
    settle();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!window.grab().save(&buffer, "PNG")) {
        return Problem{Problem::Reason::UnwritableFile,
                       file,
                       {},
                       QCoreApplication::translate("Screenshot", "无法画成图片")};
    }
    return writeFileBytes(file, bytes);
}
