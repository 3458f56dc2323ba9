#include "refhost/workbench/library/FileWatch.h"

#include <QFileInfo>

namespace {

constexpr int calmMilliseconds = 300;
constexpr int regularMilliseconds = 2000;

} // namespace

FileWatch::FileWatch(QObject *parent)
    : QObject(parent)
{
    m_calm.setSingleShot(true);
    m_calm.setInterval(calmMilliseconds);
    m_regular.setInterval(regularMilliseconds);
    const auto calm = qOverload<>(&QTimer::start);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_calm, calm);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_calm, calm);
    for (const QTimer *const timer : {&m_calm, &m_regular}) {
        connect(timer, &QTimer::timeout, this, [this] {
            watch();
            Q_EMIT stirred();
        });
    }
}

void FileWatch::setFiles(const QStringList &files)
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
    m_files = files;
    watch();
}

void FileWatch::setRegular(bool regular)
{
    if (!regular)
        m_regular.stop();
    else if (!m_regular.isActive())
        m_regular.start();
}

/// A file that has gone is not watched any more when it is back; its folder tells of that.
void FileWatch::watch()
{
    for (const QString &file : qAsConst(m_files)) {
        const QFileInfo info(file);
        const QString folder = info.absolutePath();
        if (QFileInfo(folder).isDir() && !m_watcher.directories().contains(folder))
            m_watcher.addPath(folder);
        if (info.isFile() && !m_watcher.files().contains(file))
            m_watcher.addPath(file);
    }
}
