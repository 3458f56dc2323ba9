#pragma once

#include "refhost/engine/Result.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class Console;
class QCommandLineParser;

/// One command of oprun, such as "run".
class Command
{
public:
    Command() = default;
    virtual ~Command() = default;

    /// The word that calls it.
    virtual QString name() const = 0;
    /// What it does, in one sentence.
    virtual QString summary() const = 0;
    /// A command line that shows it at work, as the help prints it.
    virtual QString example() const = 0;
    /// The arguments it expects after its name, as the help shows them; those in square brackets
    /// may be left out, and the last may be repeated when it ends in "...".
    virtual QStringList arguments() const { return {}; }
    /// The options that only this command has.
    virtual QList<QCommandLineOption> options() const { return {}; }

    /// Returns whether the command runs code of plug-ins in this process, so that the process has
    /// to be supervised.
    virtual bool runsPlugins() const { return false; }

    /// Returns the seconds after which `supervise` ends the command, 0 for no limit. A problem
    /// tells why the options give no time.
    virtual Result<double> timeoutSeconds(const QCommandLineParser &options) const
    {
        Q_UNUSED(options)
        return 0.0;
    }

    /// Does the work. `arguments` are as many as `arguments()` allows. Returns the exit status.
    virtual int run(const QCommandLineParser &options, const QStringList &arguments,
                    Console &console) const = 0;

private:
    Q_DISABLE_COPY_MOVE(Command)
};
