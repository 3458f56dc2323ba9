#pragma once

#include <QString>
#include <QStringList>

class Console;
class OperationCatalog;
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
    /// The arguments it expects after its name, as the help shows them.
    virtual QStringList arguments() const { return {}; }
    /// Adds the options that only this command has.
    virtual void addOptions(QCommandLineParser &parser) const;

    /// Does the work. `arguments` are as many as asked for. Returns the exit status.
    virtual int run(const QCommandLineParser &options, const QStringList &arguments,
                    const OperationCatalog &catalog, Console &console) const = 0;

private:
    Q_DISABLE_COPY_MOVE(Command)
};
