#pragma once

#include <QString>
#include <QStringList>

/// What the user asked for on the command line.
struct MutationOptions
{
    QStringList filePatterns; ///< of the sources to change, all when there is none
    bool listOnly = false;    ///< to name the mutations and try none
    int jobs = 2;             ///< how many to try at a time
    int every = 1;            ///< to take each n-th mutation

    /// Reads the arguments, the program's name first. `*problem` is written when they are wrong;
    /// asked for help, the program prints it and ends.
    static MutationOptions read(const QStringList &arguments, QString *problem);
};
