#include "refhost/workbench/files/Recovery.h"

#include "refhost/engine/FileBytes.h"
#include "refhost/engine/TaskPacker.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/run/RunSession.h"

#include "Operation.h"

#include <QDir>
#include <QUuid>

namespace {

constexpr int delayMilliseconds = 500;

} // namespace

Recovery::Recovery(TaskDocument &document, const RunSession &run, QString folder, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_folder(std::move(folder))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delayMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &Recovery::flush);
    connect(&document, &TaskDocument::changed, this, &Recovery::noteChange);
    connect(&document, &TaskDocument::modifiedChanged, this, [this](bool modified) {
        if (!modified)
            remove();
    });
    connect(&run, &RunSession::stateChanged, this, &Recovery::flush);
}

Recovery::~Recovery()
{
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
    m_timer.stop();
    if (!m_document.isModified() || !m_pending)
        return true;
    const Result<QByteArray> packed = packTask(m_document.state().toTask());
    if (!packed) {
        Q_EMIT failed(packed.problem());
        return false;
    }
    m_pending = !write(packed.value());
    return !m_pending;
}

bool Recovery::write(const QByteArray &packedTask)
{
    const QByteArray bytes = recoveryBytes(m_origin, packedTask);
    const QByteArray stamp = stampOf(bytes);
    if (stamp == m_writtenStamp)
        return true;
    if (!prepareFile()) {
        Q_EMIT failed({Problem::Reason::UnwritableFile, m_folder, {}, tr("无法写入恢复文件夹")});
        return false;
    }
    if (const auto problem = writeFileBytes(m_file, bytes)) {
        Q_EMIT failed(*problem);
        return false;
    }
    m_writtenStamp = stamp;
    return true;
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
    m_timer.stop();
    if (!m_lock)
        return;
    QFile::remove(m_file);
    m_lock.reset();
    m_writtenStamp.clear();
    QDir().rmdir(m_folder);
}
