#include "refhost/workbench/options/Screenshot.h"

#include "refhost/engine/FileBytes.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QPixmap>
#include <QWidget>

namespace {

/// Notes that something is laid out: fields know their height only in their width, so that one
/// layout leads to the next.
class LayoutWatch : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        hasSeen = hasSeen || event->type() == QEvent::LayoutRequest;
        return false;
    }

    bool hasSeen = false;
};

void processFor(int milliseconds)
{
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

/// Lets the window come to rest: what panels put off until there is nothing to do, and layouts,
/// however slow the machine is; half of them done would show fields cut off.
void settle()
{
    constexpr int roundMilliseconds = 100;
    constexpr int leastMilliseconds = 400;
    constexpr int mostMilliseconds = 10000;
    LayoutWatch watch;
    QCoreApplication::instance()->installEventFilter(&watch);
    QElapsedTimer time;
    time.start();
    do {
        watch.hasSeen = false;
        processFor(roundMilliseconds);
    } while (time.elapsed() < leastMilliseconds ||
             (watch.hasSeen && time.elapsed() < mostMilliseconds));
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
