#pragma once

#include "refhost/runner/Command.h"

/// "oprun docs": the reference page of all operations, in Markdown.
class DocsCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    void addOptions(QCommandLineParser &parser) const override;
    int run(const QCommandLineParser &options, const QStringList &arguments,
            const OperationCatalog &catalog, Console &console) const override;
};
