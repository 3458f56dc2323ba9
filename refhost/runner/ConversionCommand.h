#pragma once

#include "refhost/engine/Result.h"
#include "refhost/runner/PluginCommand.h"

#include <QByteArray>

class Task;

/// A command that reads a task of either form and writes it to a file, or to standard output, in
/// the form that is its own.
class ConversionCommand : public PluginCommand
{
public:
    QStringList arguments() const final;

protected:
    QList<FileRole> files(const QCommandLineParser &options,
                          const QStringList &arguments) const final;
    int runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                const QStringList &arguments, Console &console) const final;

    /// The task in the form of this command; a problem names no file.
    virtual Result<QByteArray> convert(const Task &task, const OperationCatalog &catalog) const = 0;
};
