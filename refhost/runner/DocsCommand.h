#pragma once

#include "refhost/runner/PluginCommand.h"

/// "oprun docs": the reference page of all operations, in Markdown.
class DocsCommand : public PluginCommand
{
public:
    QString name() const override;
    QString summary() const override;
    QString example() const override;
    QList<QCommandLineOption> options() const override;

protected:
    bool isForPrograms(const QCommandLineParser &options) const override;
    int runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                const QStringList &arguments, Console &console) const override;
};
