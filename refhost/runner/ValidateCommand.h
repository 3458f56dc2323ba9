#pragma once

#include "refhost/runner/Command.h"

/// "oprun validate PLUGIN...": checks plug-ins for their authors, each check in a process of its
/// own. oprun itself loads none of them.
class ValidateCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QString example() const override;
    QStringList arguments() const override;
    QList<QCommandLineOption> options() const override;

    int run(const QCommandLineParser &options, const QStringList &arguments,
            Console &console) const override;
};
