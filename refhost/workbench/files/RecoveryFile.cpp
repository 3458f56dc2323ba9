#include "refhost/workbench/files/RecoveryFile.h"

#include "refhost/engine/FileBytes.h"
#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/TaskUnpacker.h"

#include "Operation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString pathKey()
{
    return QStringLiteral("path");
}

QString packedKey()
{
    return QStringLiteral("packed");
}

QString stampKey()
{
    return QStringLiteral("stamp");
}

RecoveryOrigin originFrom(const QByteArray &line)
{
    const Result<JsonObject> object = parseJsonObject(line, {});
    const JsonObject json = object ? object.value() : JsonObject();
    const bool packed = json.value(packedKey()).toBool();
    return {json.value(pathKey()).toString(), packed ? TaskForm::Packed : TaskForm::Json,
            json.value(stampKey()).toString().toLatin1()};
}

} // namespace

QByteArray recoveryBytes(const RecoveryOrigin &origin, const QByteArray &packedTask)
{
    const JsonObject json{{packedKey(), origin.form == TaskForm::Packed},
                          {pathKey(), origin.path},
                          {stampKey(), QString::fromLatin1(origin.stamp)}};
    QByteArray line;
    appendJson(line, json);
    return line + '\n' + packedTask;
}

RecoveryFile::RecoveryFile(QString path, std::unique_ptr<QLockFile> lock)
    : m_path(std::move(path))
    , m_time(QFileInfo(m_path).lastModified())
    , m_lock(std::move(lock))
    , m_packedTask(readFileBytes(m_path))
{
    if (!m_packedTask)
        return;
    const QByteArray bytes = m_packedTask.value();
    const int lineEnd = bytes.indexOf('\n');
    m_origin = originFrom(bytes.left(lineEnd));
    m_packedTask = bytes.mid(lineEnd + 1);
}

std::vector<RecoveryFile> RecoveryFile::allIn(const QString &folder)
{
    std::vector<RecoveryFile> found;
    const QDir dir(folder);
    const QStringList names =
        dir.entryList({QLatin1Char('*') + recoverySuffix()}, QDir::Files, QDir::Time);
    for (const QString &name : names) {
        const QString path = dir.filePath(name);
        auto lock = recoveryLock(path);
        // The window may have ended in good order since the folder was read.
        if (lock->tryLock(0) && QFileInfo::exists(path))
            found.push_back(RecoveryFile(path, std::move(lock)));
    }
    return found;
}

Result<Task> RecoveryFile::read(const OperationCatalog &catalog) const
{
    if (!m_packedTask)
        return m_packedTask.problem();
    Result<Task> task = unpackTask(m_packedTask.value(), catalog);
    if (task)
        return task;
    Problem problem = task.problem();
    problem.file = m_path;
    return problem;
}

void RecoveryFile::remove()
{
    QFile::remove(m_path);
    m_lock->unlock();
    QDir().rmdir(QFileInfo(m_path).absolutePath());
}

QString recoveryFolder()
{
    QString chosen = qEnvironmentVariable("OPWORKBENCH_RECOVERY");
    if (!chosen.isEmpty())
        return chosen;
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/recovery");
}

std::unique_ptr<QLockFile> recoveryLock(const QString &path)
{
    auto lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
    lock->setStaleLockTime(0); // a window may live for days
    return lock;
}

QString recoverySuffix()
{
    return QStringLiteral(".recovery");
}
