#pragma once

#include <QString>
#include <QStringList>

/// The folders in which plug-ins are looked for, seen from a host program in `programFolder`: those
/// of the build tree and of an installed tree, whether or not they are there.
QStringList pluginFolders(const QString &programFolder);

/// The library files in `folders`, sorted by name within each.
QStringList pluginFiles(const QStringList &folders);

/// Returns the path of a file that belongs to a plug-in: "<library base name><ending>" in the
/// folder of the library file, whether or not there is one.
QString fileBeside(const QString &plugin, const QString &ending);
