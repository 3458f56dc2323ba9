#include "refhost/runner/FileRoles.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/runner/RunnerText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace {

using Access = FileRole::Access;

constexpr int standardInput = 0;
constexpr int standardOutput = 1;
constexpr int standardError = 2;

#ifdef Q_OS_UNIX

QString numberPair(const struct stat &status)
{
    return QStringLiteral("%1:%2").arg(status.st_dev).arg(status.st_ino);
}

/// Returns the path to which a dangling link leads, however many links are in between. Returns
/// `path` if it is no link.
QString targetOfDanglingLink(QString path)
{
    constexpr int mostLinks = 40;
    for (int link = 0; link < mostLinks; ++link) {
        const QString target = QFile::symLinkTarget(path);
        if (target.isEmpty())
            break;
        path = target;
    }
    return path;
}

/// Returns a text that is equal for two names of the same ordinary file; empty for a device, a pipe
/// or a folder, and where no file can be made.
QString identityOf(const FileRole &file)
{
    struct stat status = {};
    const int failure = file.descriptor >= 0
                            ? fstat(file.descriptor, &status)
                            : stat(QFile::encodeName(file.path).constData(), &status);
    if (failure == 0)
        return S_ISREG(status.st_mode) ? numberPair(status) : QString();
    if (file.path.isEmpty())
        return {};
    const QFileInfo created(targetOfDanglingLink(file.path));
    if (stat(QFile::encodeName(created.path()).constData(), &status) != 0)
        return {};
    return numberPair(status) + QLatin1Char('/') + created.fileName();
}

#else

QString identityOf(const FileRole &file)
{
    const QFileInfo info(file.path);
    if (file.path.isEmpty() || (info.exists() && !info.isFile()))
        return {};
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + info.fileName();
}

#endif

bool isStandard(const FileRole &file)
{
    return file.descriptor >= 0;
}

QString streamName(int descriptor)
{
    if (descriptor == standardInput)
        return RunnerText::tr("standard input");
    return descriptor == standardOutput ? RunnerText::tr("standard output")
                                        : RunnerText::tr("standard error");
}

/// Returns true if the command may use one ordinary file for both.
bool mayShare(const FileRole &left, const FileRole &right)
{
    // "2>&1" leads standard output and standard error to one file.
    if (left.access == right.access &&
        (left.access == Access::Read || (isStandard(left) && isStandard(right))))
        return true;
    return left.replaces == right.role || right.replaces == left.role;
}

/// Returns true if one of both is written and would alter the other.
bool isInTheWay(const FileRole &left, const FileRole &right)
{
    if (left.access == Access::Written && right.access == Access::Written && isStandard(left) &&
        left.descriptor == right.descriptor)
        return true;
    if (mayShare(left, right))
        return false;
    const QString identity = identityOf(left);
    return !identity.isEmpty() && identity == identityOf(right);
}

/// Returns the problem with `written`, which is the same file as `other`.
Problem sharedFile(const FileRole &written, const FileRole &other)
{
    const QString named = isStandard(other)
                              ? streamName(other.descriptor)
                              : QStringLiteral("%1 (%2)").arg(jsonText(other.path), other.role);
    return {Problem::Reason::UnfitValue,
            {},
            written.role,
            isStandard(written)
                ? RunnerText::tr("leads to the same file as %1; expected another file").arg(named)
                : RunnerText::tr("%1 is the same file as %2; expected another file")
                      .arg(jsonText(written.path), named)};
}

} // namespace

FileRole readRole(const QString &role, const QString &path)
{
    if (path == QLatin1String("-"))
        return {role, {}, Access::Read, standardInput};
    return {role, path, Access::Read};
}

FileRole writtenRole(const QString &role, const QString &path, const QString &replaces)
{
    if (path == QLatin1String("-") || path == QLatin1String("/dev/stdout"))
        return {role, {}, Access::Written, standardOutput};
    return {role, path, Access::Written, -1, replaces};
}

QList<FileRole> pluginRoles(const QStringList &plugins)
{
    const QString role = RunnerText::tr("plug-in");
    QList<FileRole> roles;
    for (const QString &plugin : plugins) {
        const QFileInfo library(plugin);
        roles.append({role, plugin});
        const QString stem = library.completeBaseName();
        const QStringList names = library.dir().entryList(QDir::Files, QDir::Name);
        for (const QString &name : names) {
            const bool belongs = name.startsWith(stem + QLatin1Char('.')) ||
                                 name.startsWith(stem + QLatin1Char('_'));
            if (belongs && name != library.fileName())
                roles.append({role, library.path() + QLatin1Char('/') + name});
        }
    }
    return roles;
}

std::optional<Problem> findSharedFile(QList<FileRole> files)
{
    files.append({RunnerText::tr("standard error"), {}, Access::Written, standardError});
    for (int later = 0; later < files.size(); ++later) {
        for (int earlier = 0; earlier < later; ++earlier) {
            const FileRole &left = files.at(earlier);
            const FileRole &right = files.at(later);
            if (isInTheWay(left, right)) {
                return right.access == Access::Written ? sharedFile(right, left)
                                                       : sharedFile(left, right);
            }
        }
    }
    return std::nullopt;
}
