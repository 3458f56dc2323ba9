#pragma once

#include <QStringList>

class QCommandLineParser;

/// The folders in which oprun looks for plug-ins when none are named.
QStringList ownPluginFolders();

/// The plug-in files named with "--plugin", else those found in `ownPluginFolders`.
QStringList chosenPlugins(const QCommandLineParser &options);
