#pragma once

#include "refhost/engine/Result.h"
#include "refhost/workbench/files/TaskFile.h"

#include <QByteArray>
#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>
#include <vector>

class OperationCatalog;

/// What belongs to the task in a recovery file.
struct RecoveryOrigin
{
    QString path; ///< the file the task belongs to, empty when it was never saved
    TaskForm form = TaskForm::Json;
    QByteArray stamp; ///< of that file as it was opened or saved last
};

/// The content of a recovery file: one line about the origin, then the packed task.
QByteArray recoveryBytes(const RecoveryOrigin &origin, const QByteArray &packedTask);

/// A task of a window that is no more. Nobody else gets at it while this object lives.
class RecoveryFile
{
public:
    /// The tasks in `folder` whose windows are no more and that nobody else has in hand, the last
    /// changed first.
    static std::vector<RecoveryFile> allIn(const QString &folder);

    const RecoveryOrigin &origin() const { return m_origin; }
    QDateTime time() const { return m_time; }

    /// The task. A problem, such as a plug-in that is not there, names the file.
    Result<Task> read(const OperationCatalog &catalog) const;

    /// Deletes the file.
    void remove();

private:
    RecoveryFile(QString path, std::unique_ptr<QLockFile> lock);

    QString m_path;
    QDateTime m_time;
    std::unique_ptr<QLockFile> m_lock;
    RecoveryOrigin m_origin;
    Result<QByteArray> m_packedTask;
};

/// The folder of recovery files: what the environment variable OPWORKBENCH_RECOVERY says, else one
/// among the data of the user.
QString recoveryFolder();

/// The lock of a recovery file, not taken yet. A window that is no more does not hold it.
std::unique_ptr<QLockFile> recoveryLock(const QString &path);

/// The suffix of recovery files, with its point.
QString recoverySuffix();
