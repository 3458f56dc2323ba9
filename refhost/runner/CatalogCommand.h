#pragma once

#include "refhost/runner/Command.h"

/// "oprun catalog": what the plug-ins contribute, in the order in which a user sees it.
class CatalogCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    void addOptions(QCommandLineParser &parser) const override;
    int run(const QCommandLineParser &options, const QStringList &arguments,
            const OperationCatalog &catalog, Console &console) const override;
};
