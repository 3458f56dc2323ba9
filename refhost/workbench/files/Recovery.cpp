#include "refhost/workbench/files/Recovery.h"

#include "refhost/engine/FileBytes.h"
#include "refhost/engine/PackedForm.h"
#include "refhost/engine/TaskPacker.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/run/RunSession.h"

#include "Operation.h"

#include <QDir>
#include <QThread>
#include <QUuid>

namespace {

constexpr int delayMilliseconds = 500;

} // namespace

/// One state on its way to the file, and what has come of it.
struct Recovery::Job
{
    Task task; ///< with operations of its own
    RecoveryOrigin origin;
    QString file;
    QByteArray stamp; ///< of what is in the file
    std::optional<Problem> problem;

    void run();
};

void Recovery::Job::run()
{
    const Result<QByteArray> packed = packTask(task);
    if (!packed) {
        problem = packed.problem();
        return;
    }
    // The packed form ends with its checksum.
    const QByteArray next = recoveryBytes(origin, packed.value().right(PackedForm::checksumSize));
    if (next == stamp)
        return;
    problem = writeFileBytes(file, recoveryBytes(origin, packed.value()));
    if (!problem)
        stamp = next;
}

Recovery::Recovery(TaskDocument &document, const RunSession &run, QString folder, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_folder(std::move(folder))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delayMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &Recovery::begin);
    connect(&document, &TaskDocument::changed, this, &Recovery::noteChange);
    connect(&document, &TaskDocument::modifiedChanged, this, [this](bool modified) {
        if (!modified)
            remove();
    });
    connect(&run, &RunSession::stateChanged, this, &Recovery::flush);
}

Recovery::~Recovery()
{
    waitForJob();
    if (!m_document.isModified() || m_givenUp)
        remove();
}

void Recovery::setOrigin(const RecoveryOrigin &origin)
{
    m_origin = origin;
    m_pending = true;
}

/// The timer is not set back by further changes: who types on and on loses half a second at most.
void Recovery::noteChange()
{
    m_pending = true;
    m_givenUp = false;
    if (!m_timer.isActive())
        m_timer.start();
}

bool Recovery::flush()
{
    waitForJob();
    begin();
    waitForJob();
    m_timer.stop();
    return !m_document.isModified() || !m_pending;
}

void Recovery::begin()
{
    if (m_job || !m_pending || !m_document.isModified())
        return;
    if (!prepareFile()) {
        Q_EMIT failed({Problem::Reason::UnwritableFile, m_folder, {}, tr("无法写入恢复文件夹")});
        return;
    }
    m_pending = false;
    m_job = std::make_unique<Job>();
    m_job->task = m_document.state().toTask();
    m_job->origin = m_origin;
    m_job->file = m_file;
    m_job->stamp = m_writtenStamp;
    m_thread.reset(QThread::create([job = m_job.get()] { job->run(); }));
    connect(m_thread.get(), &QThread::finished, this, &Recovery::finish);
    m_thread->start();
}

void Recovery::finish()
{
    if (m_thread && m_thread->isFinished())
        waitForJob();
}

/// Takes over what has come of the job. What has changed since it began is still pending.
void Recovery::waitForJob()
{
    if (!m_job)
        return;
    m_thread->wait();
    m_thread.reset();
    const std::unique_ptr<Job> job = std::move(m_job);
    m_writtenStamp = job->stamp;
    if (job->problem) {
        m_pending = true;
        Q_EMIT failed(*job->problem);
    } else if (m_pending) {
        m_timer.start();
    }
}

/// The lock comes first: there is never a file that looks as if its window were gone.
bool Recovery::prepareFile()
{
    if (m_lock)
        return true;
    const QDir folder(m_folder);
    if (!folder.mkpath(QStringLiteral(".")))
        return false;
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_file = folder.filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + recoverySuffix());
    auto lock = recoveryLock(m_file);
    if (!lock->tryLock(0))
        return false;
    m_lock = std::move(lock);
    return true;
}

void Recovery::remove()
{
    waitForJob();
    m_timer.stop();
    if (!m_lock)
        return;
    QFile::remove(m_file);
    m_lock.reset();
    m_writtenStamp.clear();
    QDir().rmdir(m_folder);
}
