#include "refhost/engine/FileBytes.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/OutputFile.h"

#include <QFile>

namespace {

using Reason = Problem::Reason;

Problem unreadable(const QFile &file)
{
    return {Reason::UnreadableFile,
            file.fileName(),
            {},
            EngineText::tr("cannot be read (%1)").arg(file.errorString())};
}

} // namespace

Result<QByteArray> readFileBytes(const QString &path)
{
    if (path.isEmpty())
        return emptyFileName(Reason::UnreadableFile);
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
    OutputFile file(path);
    if (auto problem = file.open())
        return problem;
    if (auto problem = file.write(bytes))
        return problem;
    return file.commit();
}
