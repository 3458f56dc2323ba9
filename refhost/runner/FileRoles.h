#pragma once

#include "refhost/engine/Problem.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// One file that a command reads or writes.
struct FileRole
{
    enum class Access { Read, Written };

    QString role;                 ///< how the user knows the file, such as "--out" or "TASK"
    QString path;                 ///< empty for a standard stream
    Access access = Access::Read; ///< a written file must not be another file of the command
    int descriptor = -1;          ///< of a standard stream, 0 to 2; -1 for a named file
    QString replaces = QString(); ///< the role whose file this written file may replace
};

/// Returns the role of a file that is read; "-" is standard input.
FileRole readRole(const QString &role, const QString &path);

/// Returns the role of a file that is written; "-" and "/dev/stdout" are standard output. The file
/// may be that of the role `replaces`, unless it is standard output.
FileRole writtenRole(const QString &role, const QString &path, const QString &replaces = {});

/// Returns the roles of the plug-ins in `plugins` and of the files beside them that belong to them:
/// those of the same folder whose names begin with the base name of the library and "." or "_".
QList<FileRole> pluginRoles(const QStringList &plugins);

/// Returns a problem when a written file of `files`, or standard error, is the same ordinary file
/// as another. Existing files are compared by device and inode, so links of both kinds count; files
/// that do not exist yet by their folder and name. Devices and pipes may be used twice. Opens
/// nothing.
std::optional<Problem> findSharedFile(QList<FileRole> files);
