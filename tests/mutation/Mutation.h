#pragma once

#include <QString>

/// One change of one source.
struct Mutation
{
    QString file;        ///< relative to the project's folder
    int line = 0;        ///< counted from 1
    int column = 0;      ///< counted from 1, in UTF-16 code units
    int offset = 0;      ///< of the original in the source text
    QString what;        ///< the kind of change: "comparison", "constant" …
    QString original;    ///< what stands in the source
    QString replacement; ///< what stands there in the mutant
    QString before;      ///< the lines with the original, on one line
    QString after;       ///< the same lines of the mutant
};

/// `source` with the mutation in it.
QString mutated(const QString &source, const Mutation &mutation);

/// The mutation as the reports show it: place, kind, the line before and after.
QString describe(const Mutation &mutation);
