#pragma once

#include "refhost/runner/Command.h"

#include <QList>

class OperationCatalog;
struct CatalogEntry;
struct FileRole;

/// A command that works on the operations of the plug-ins: those named with "--plugin", else those
/// found beside the program.
class PluginCommand : public Command
{
public:
    bool runsPlugins() const final { return true; }

    /// Loads the plug-ins, and their texts in the language of the user, and runs the command on
    /// them; with a message when one does not load.
    int run(const QCommandLineParser &options, const QStringList &arguments,
            Console &console) const final;

protected:
    /// Whether the results have texts of plug-ins, or messages, for programs to read, or for the
    /// record: these are then the same in every locale.
    virtual bool isForPrograms(const QCommandLineParser &options) const;

    /// Returns the files that the command reads and writes, without the plug-ins. A written file
    /// that is the same as another is refused before anything is opened. By default a command with
    /// a TASK reads its file and writes standard output; any other command has no files.
    virtual QList<FileRole> files(const QCommandLineParser &options,
                                  const QStringList &arguments) const;

    /// Does the work. `arguments` are as many as `arguments()` allows. Returns the exit status.
    virtual int runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                        const QStringList &arguments, Console &console) const = 0;

    /// The entry of an operation the user named; null, with a message, when there is none.
    static const CatalogEntry *findOrComplain(const OperationCatalog &catalog,
                                              const QString &typeId, const Console &console);
};
