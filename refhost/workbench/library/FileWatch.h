#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

/// Tells when files may have become others, a moment after the last sign of it. Files may go and
/// come back, as programs that write files let them, and need not be there at first.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent = nullptr);

    /// Watches these files and no others.
    void setFiles(const QStringList &files);

    /// Also looks every other second, for what nothing tells of: a folder that comes to be, or a
    /// file that is written through memory.
    void setRegular(bool regular);

Q_SIGNALS:
    /// It is time to look at the files.
    void stirred();

private:
    void watch();

    QFileSystemWatcher m_watcher;
    QStringList m_files;
    QTimer m_calm;
    QTimer m_regular;
};
