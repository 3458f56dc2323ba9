#pragma once

#include "benchmarks/Figures.h"

#include <QString>
#include <QVector>

/// What the figures are meant to be, and which of them are not.
struct Target
{
    struct Miss
    {
        Subject subject;
        int size; ///< of a growth the largest text
        double value;
    };

    QString name;
    double limit;
    bool isUpperLimit;         ///< whether a value above the limit misses the target, or one below
    int judged = 0;            ///< how many figures it applies to
    QVector<Miss> misses = {}; ///< the worst first

    /// Counts a figure, and keeps it if it misses the target.
    void judge(const Miss &figure);
};

/// The targets with what the figures say about them.
QVector<Target> judgedTargets(const Figures &figures);
