#pragma once

#include "refhost/runner/Command.h"

/// "oprun describe TYPE": the properties of one operation as an editor is told about them.
class DescribeCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QStringList arguments() const override;
    void addOptions(QCommandLineParser &parser) const override;
    int run(const QCommandLineParser &options, const QStringList &arguments,
            const OperationCatalog &catalog, Console &console) const override;
};
