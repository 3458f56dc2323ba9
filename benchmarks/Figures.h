#pragma once

#include "benchmarks/Alphabet.h"

#include <QString>
#include <QVector>

/// What a figure was measured on.
struct Subject
{
    QString typeId;
    QString name;
    Alphabet alphabet;
};

/// A step beside the bare work and the plain copy, in nanoseconds.
struct Comparison
{
    Subject subject;
    int size;
    bool hasToBeatQt;
    double step;
    double bare;
    double copy;

    double toBare() const { return step / bare; }
    double toCopy() const { return step / copy; }
};

/// Work on texts of which each is twice as long as the one before.
struct Growth
{
    struct Point
    {
        int size;
        double time; ///< nanoseconds
    };

    Subject subject;
    QVector<Point> points;
    bool isStep; ///< whether it is the work of a step, or the plain copy beside all of them

    /// The factor from one point to the next, on average over all of them. There are at least two.
    double ratioPerDoubling() const;
};

/// All that was measured.
struct Figures
{
    QVector<Comparison> comparisons;
    QVector<Growth> growths;
};
