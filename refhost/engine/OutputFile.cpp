#include "refhost/engine/OutputFile.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/ProgramArguments.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

#ifdef Q_OS_UNIX
#    include <unistd.h>
#endif

#ifdef Q_OS_LINUX
#    include <climits>
#    include <sys/stat.h>
#endif

namespace {

#ifdef Q_OS_LINUX

/// The path of an open file. Empty for one without a name, which the system removes by itself.
QByteArray pathOf(int descriptor)
{
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(descriptor);
    std::array<char, PATH_MAX> buffer;
    const auto size = readlink(link.constData(), buffer.data(), buffer.size());
    const QByteArray path(buffer.data(), static_cast<int>(qMax<ssize_t>(size, 0)));
    struct stat named = {};
    struct stat opened = {};
    const bool isThere = stat(path.constData(), &named) == 0 && fstat(descriptor, &opened) == 0 &&
                         named.st_ino == opened.st_ino && named.st_dev == opened.st_dev;
    return isThere ? path : QByteArray();
}

#else

QByteArray pathOf(int descriptor)
{
    Q_UNUSED(descriptor)
    return {};
}

#endif

/// Returns true for a link that leads, also over other links, to a name that is not UTF-8. Qt would
/// follow it to another name.
bool leadsOutsideUtf8(QString name)
{
#ifdef Q_OS_UNIX
    constexpr int mostLinks = 40;
    for (int link = 0; link < mostLinks; ++link) {
        std::array<char, 4096> target; // longer ones cannot be opened
        const QByteArray path = QFile::encodeName(name);
        const ssize_t size = readlink(path.constData(), target.data(), target.size());
        if (size < 0)
            return false;
        const QByteArray bytes(target.data(), static_cast<int>(size));
        if (QString::fromUtf8(bytes).toUtf8() != bytes)
            return true;
        name = QFile::symLinkTarget(name);
    }
#endif
    Q_UNUSED(name)
    return false;
}

} // namespace

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
    if (leadsOutsideUtf8(m_name))
        return unwritable(EngineText::tr("it is a link to a name that is not UTF-8"));
    const QString unfitFolder = unfitFolderReason(m_name);
    if (!unfitFolder.isEmpty())
        return unwritable(unfitFolder);
    const QFileInfo there(m_name);
    // A device or a pipe is written to, not replaced.
    if (there.exists() && !there.isFile() && !there.isDir())
        m_file = std::make_unique<QFile>(m_name);
    else
        m_file = std::make_unique<QSaveFile>(m_name);
    // The buffer of QFileDevice forgets the reason when the system takes a part of it only.
    if (!m_file->open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return unwritable(m_file->errorString());
    return std::nullopt;
}

std::optional<Problem> OutputFile::write(const QByteArray &bytes)
{
    if (isStandardOutput())
        return writeToStandardOutput(bytes);
    constexpr int enough = 65536;
    m_unwritten += bytes;
    const bool isHeldBack = qobject_cast<QSaveFile *>(m_file.get()) != nullptr;
    return isHeldBack && m_unwritten.size() < enough ? std::nullopt : writeThrough();
}

/// Hands everything over to the system, which may take it in parts. The system gives the reason
/// only when it takes nothing.
std::optional<Problem> OutputFile::writeThrough()
{
    const QByteArray bytes = std::exchange(m_unwritten, {});
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 part = m_file->write(bytes.constData() + written, bytes.size() - written);
        if (part <= 0)
            return unwritable(m_file->errorString());
        written += part;
    }
    return std::nullopt;
}

/// Waits until the file is on the disk: some file systems find out only now that it is full. Files
/// that cannot be waited for are no problem.
std::optional<Problem> OutputFile::storeOnDisk()
{
#ifdef Q_OS_UNIX
    if (fsync(m_file->handle()) != 0 && errno != EINVAL && errno != ENOTSUP && errno != EROFS)
        return unwritable(qt_error_string(errno));
#endif
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

QByteArray OutputFile::temporaryFile() const
{
    return qobject_cast<QSaveFile *>(m_file.get()) ? pathOf(m_file->handle()) : QByteArray();
}

std::optional<Problem> OutputFile::commit()
{
    if (isStandardOutput())
        return std::nullopt;
    if (auto problem = writeThrough())
        return problem;
    auto *const whole = qobject_cast<QSaveFile *>(m_file.get());
    if (!whole)
        return std::nullopt;
    if (auto problem = storeOnDisk())
        return problem;
    if (!whole->commit())
        return unwritable(whole->errorString());
    return std::nullopt;
}
