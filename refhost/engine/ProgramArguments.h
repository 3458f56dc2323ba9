#pragma once

#include "refhost/engine/Result.h"

#include <QString>
#include <QStringList>

/// Returns the arguments of `main`, the name of the program first. On Unix, where arguments are
/// bytes, a problem names the first one that is not valid UTF-8: with bytes replaced, it would name
/// another file. Elsewhere the arguments are those of the application, if there is one.
Result<QStringList> programArguments(int argc, char *argv[]);

/// Returns the one of `arguments`, the name of the program first, in which a QCommandLineParser
/// found the unknown option `name`, without a value: "-json" when `name` is "j", since the parser
/// takes what follows a single dash for letters with an option each.
QString argumentWithOption(const QString &name, const QStringList &arguments);

/// Returns why Qt has no absolute path for `path`: the path is relative, and the name of the
/// working folder is not UTF-8. Empty when Qt has one.
QString unfitFolderReason(const QString &path);
