#pragma once

#include "refhost/runner/Command.h"

/// "oprun run TASK.json": runs a task and prints its variables.
class RunCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QStringList arguments() const override;
    void addOptions(QCommandLineParser &parser) const override;
    int run(const QCommandLineParser &options, const QStringList &arguments,
            const OperationCatalog &catalog, Console &console) const override;
};
