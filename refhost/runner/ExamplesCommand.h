#pragma once

#include "refhost/runner/Command.h"

/// "oprun examples [TYPE]": prints the worked examples of the operations, or runs them and
/// compares.
class ExamplesCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QStringList arguments() const override;
    void addOptions(QCommandLineParser &parser) const override;
    int run(const QCommandLineParser &options, const QStringList &arguments,
            const OperationCatalog &catalog, Console &console) const override;
};
