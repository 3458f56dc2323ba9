#pragma once

#include "refhost/runner/PluginCommand.h"

/// "oprun explain TASK": what each step would do, without running any.
class ExplainCommand : public PluginCommand
{
public:
    QString name() const override;
    QString summary() const override;
    QString example() const override;
    QStringList arguments() const override;

protected:
    int runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                const QStringList &arguments, Console &console) const override;
};
