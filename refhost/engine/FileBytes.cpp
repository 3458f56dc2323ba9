#include "refhost/engine/FileBytes.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

using Reason = Problem::Reason;

Problem emptyPath(Reason reason)
{
    return {reason, {}, {}, QStringLiteral("an empty file name; expected a file")};
}

Problem unreadable(const QFile &file)
{
    return {Reason::UnreadableFile,
            file.fileName(),
            {},
            QStringLiteral("cannot be read (%1)").arg(file.errorString())};
}

Problem unwritable(const QString &path, const QString &why)
{
    return {Reason::UnwritableFile, path, {}, QStringLiteral("cannot be written (%1)").arg(why)};
}

} // namespace

Result<QByteArray> readFileBytes(const QString &path)
{
    if (path.isEmpty())
        return emptyPath(Reason::UnreadableFile);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return unreadable(file);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return unreadable(file);
    return bytes;
}

std::optional<Problem> writeFileBytes(const QString &path, const QByteArray &bytes)
{
    if (path.isEmpty())
        return emptyPath(Reason::UnwritableFile);
    // A new file is put in the place of the old one, and a device is not to be replaced.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return unwritable(path, QStringLiteral("it is no ordinary file"));
    QSaveFile file(path);
    // Closing the file flushes it too, but keeps to itself whether that went well.
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
                         file.flush() && file.commit();
    if (!written)
        return unwritable(path, file.errorString());
    return std::nullopt;
}
