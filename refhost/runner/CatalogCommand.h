#pragma once

#include "refhost/runner/PluginCommand.h"

/// "oprun catalog": what the plug-ins contribute, in the order in which a user sees it.
class CatalogCommand : public PluginCommand
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
