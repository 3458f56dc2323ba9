#pragma once

#include "refhost/engine/Result.h"

#include <QCommandLineOption>
#include <QList>
#include <QStringList>

class QCommandLineParser;

/// What "oprun validate" is asked to do.
struct ValidateOptions
{
    bool list = false; ///< list the checks instead
    bool json = false;
    int level = 3;
    bool operands = false; ///< run the checks of the option "operands" as well
    QStringList only; ///< the identifiers of the checks to run whatever their level; empty for all
    quint32 seed = 1;
    int timeoutSeconds = 60;
    QString keepFolder; ///< where the tasks are left that show what is wrong

    /// All the options.
    static QList<QCommandLineOption> all();

    /// Reads the options; the problem names the first one that cannot be used.
    static Result<ValidateOptions> read(const QCommandLineParser &parser);
};
