#include "refhost/engine/OutputFile.h"

#include "refhost/engine/EngineText.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstdio>

OutputFile::OutputFile(const QString &name)
    : m_name(name)
{
}

OutputFile::~OutputFile() = default;

QString OutputFile::name() const
{
    return isStandardOutput() ? EngineText::tr("standard output") : m_name;
}

bool OutputFile::isStandardOutput() const
{
    // It may lead to an ordinary file, which is not to be replaced.
    return m_name == QLatin1String("-") || m_name == QLatin1String("/dev/stdout");
}

Problem OutputFile::unwritable(const QString &reason) const
{
    return {Problem::Reason::UnwritableFile,
            name(),
            {},
            EngineText::tr("cannot be written (%1)").arg(reason)};
}

std::optional<Problem> OutputFile::open()
{
    if (isStandardOutput())
        return std::nullopt;
    if (m_name.isEmpty())
        return emptyFileName(Problem::Reason::UnwritableFile);
    const QFileInfo there(m_name);
    // A device or a pipe is written to, not replaced.
    if (there.exists() && !there.isFile() && !there.isDir())
        m_file = std::make_unique<QFile>(m_name);
    else
        m_file = std::make_unique<QSaveFile>(m_name);
    if (!m_file->open(QIODevice::WriteOnly))
        return unwritable(m_file->errorString());
    return std::nullopt;
}

std::optional<Problem> OutputFile::write(const QByteArray &bytes)
{
    if (isStandardOutput())
        return writeToStandardOutput(bytes);
    const bool isHeldBack = qobject_cast<QSaveFile *>(m_file.get()) != nullptr;
    if (m_file->write(bytes) != bytes.size() || (!isHeldBack && !m_file->flush()))
        return unwritable(m_file->errorString());
    return std::nullopt;
}

std::optional<Problem> OutputFile::writeToStandardOutput(const QByteArray &bytes)
{
    errno = 0;
    const auto size = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0)
        return std::nullopt;
    m_readerIsGone = errno == EPIPE;
    return unwritable(qt_error_string(errno));
}

std::optional<Problem> OutputFile::commit()
{
    if (isStandardOutput())
        return std::nullopt;
    auto *const whole = qobject_cast<QSaveFile *>(m_file.get());
    // Committing flushes, too, but keeps to itself whether that went well.
    if (!m_file->flush() || (whole && !whole->commit()))
        return unwritable(m_file->errorString());
    return std::nullopt;
}
