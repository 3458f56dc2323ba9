#pragma once

#include "refhost/runner/PluginCommand.h"

/// "oprun check TASK": likely mistakes in a task, without running it.
class CheckCommand : public PluginCommand
{
public:
    QString name() const override;
    QString summary() const override;
    QString example() const override;
    QStringList arguments() const override;
    QList<QCommandLineOption> options() const override;

protected:
    bool isForPrograms(const QCommandLineParser &options) const override;
    int runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                const QStringList &arguments, Console &console) const override;
};
