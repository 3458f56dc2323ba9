#include "refhost/workbench/files/FileDrop.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace {

/// The one file that it is, empty when it is something else.
QString fileIn(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    const QString path = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
    return QFileInfo(path).isFile() ? path : QString();
}

} // namespace

FileDrop::FileDrop(QWidget *window)
    : QObject(window)
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrop = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove ||
                        event->type() == QEvent::Drop;
    if (!isDrop)
        return QObject::eventFilter(watched, event);
    auto *const drop = static_cast<QDropEvent *>(event);
    const QString path = fileIn(*drop->mimeData());
    if (path.isEmpty())
        return false;
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (event->type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, path] { Q_EMIT dropped(path); });
    return true;
}
