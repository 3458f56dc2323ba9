#pragma once

#include <QString>

/// Returns why there is no ordinary file at `path`: an empty name, nothing, a folder or a device.
/// Empty when there is one.
QString missingFileReason(const QString &path);

/// Returns why the file at `path` is no library that this program can load: none is there, it is
/// empty or cannot be read, it is a file of another kind, or it is built for another system or
/// processor. Empty when nothing of it speaks against loading it. Reads the first bytes only.
QString unfitLibraryReason(const QString &path);
