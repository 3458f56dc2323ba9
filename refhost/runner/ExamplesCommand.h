#pragma once

#include "refhost/runner/PluginCommand.h"

/// "oprun examples [TYPE]": prints the worked examples of the operations, or runs them and
/// compares.
class ExamplesCommand : public PluginCommand
{
public:
    QString name() const override;
    QString summary() const override;
    QString example() const override;
    QStringList arguments() const override;
    QList<QCommandLineOption> options() const override;

protected:
    int runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                const QStringList &arguments, Console &console) const override;
};
