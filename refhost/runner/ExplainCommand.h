#pragma once

#include "refhost/runner/Command.h"

/// "oprun explain TASK.json": what each step would do, without running any.
class ExplainCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QStringList arguments() const override;
    int run(const QCommandLineParser &options, const QStringList &arguments,
            const OperationCatalog &catalog, Console &console) const override;
};
