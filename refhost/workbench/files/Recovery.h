#pragma once

#include "refhost/engine/Problem.h"
#include "refhost/workbench/files/RecoveryFile.h"

#include <QObject>
#include <QTimer>

#include <memory>

class QThread;
class RunSession;
class TaskDocument;

/// Keeps a modified task in a file of its own, so that it is not lost with the process: half a
/// second after a change, and before a run goes on, since a plug-in may take the process along.
/// Large tasks hold up nobody: they are written on a thread of their own, from copies.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// Both have to outlive this object. Files stand in `folder`, which is made when it is needed.
    Recovery(TaskDocument &document, const RunSession &run, QString folder,
             QObject *parent = nullptr);

    /// Leaves nothing behind, unless the task is modified and nobody has said what is to become of
    /// it.
    ~Recovery() override;

    const QString &folder() const { return m_folder; }

    /// What the task comes from.
    void setOrigin(const RecoveryOrigin &origin);

    /// Writes now what is not written yet. Whether the task, if it is modified, is in the file.
    bool flush();

    /// The user lets go of the changes: the file goes with this object.
    void giveUp() { m_givenUp = true; }

Q_SIGNALS:
    /// The task cannot be kept.
    void failed(const Problem &problem);

private:
    struct Job;

    void noteChange();
    void begin();
    void finish();
    void waitForJob();
    bool prepareFile();
    void remove();

    TaskDocument &m_document;
    QString m_folder;
    QString m_file;
    std::unique_ptr<QLockFile> m_lock;
    RecoveryOrigin m_origin;
    QTimer m_timer;
    std::unique_ptr<Job> m_job; ///< what the thread is at
    std::unique_ptr<QThread> m_thread;
    QByteArray m_writtenStamp;
    bool m_pending = false; ///< the state may be another than the one in the file
    bool m_givenUp = false;
};
