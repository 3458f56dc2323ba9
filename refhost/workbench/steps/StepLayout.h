#pragma once

#include <QFontMetrics>
#include <QRect>
#include <QVector>

/// Where in its row the parts of a step stand. All sizes follow the font.
struct StepLayout
{
    QRect gutter; ///< the breakpoint, and the arrow of the step that runs next
    QRect number;
    QRect icon;
    QRect summary;
    QVector<QRect> badges;
    QRect duration;

    /// The layout of a row at `row`, in a list of `steps` steps: with so many badges, and with room
    /// for a time when the steps have run.
    static StepLayout of(const QRect &row, const QFontMetrics &metrics, int steps, int badges,
                         bool hasRun);

    static int gutterWidth(const QFontMetrics &metrics);
    static int rowHeight(const QFontMetrics &metrics);
};
