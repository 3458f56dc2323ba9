#pragma once

#include "refhost/runner/PluginCommand.h"

/// "oprun run TASK": runs a task and prints its variables.
class RunCommand : public PluginCommand
{
public:
    QString name() const override;
    QString summary() const override;
    QString example() const override;
    QStringList arguments() const override;
    QList<QCommandLineOption> options() const override;
    Result<double> timeoutSeconds(const QCommandLineParser &options) const override;

protected:
    bool isForPrograms(const QCommandLineParser &options) const override;
    QList<FileRole> files(const QCommandLineParser &options,
                          const QStringList &arguments) const override;
    int runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                const QStringList &arguments, Console &console) const override;
};
