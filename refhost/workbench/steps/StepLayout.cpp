#include "refhost/workbench/steps/StepLayout.h"

#include <QString>

namespace {

QRect centred(const QRect &row, int left, int side)
{
    return {left, row.center().y() - side / 2, side, side};
}

int numberWidth(const QFontMetrics &metrics, int steps)
{
    const int digits = qMax(2, QString::number(steps).size());
    return metrics.horizontalAdvance(QString(digits, QLatin1Char('0')));
}

} // namespace

StepLayout StepLayout::of(const QRect &row, const QFontMetrics &metrics, int steps, int badges,
                          bool hasRun)
{
    const int unit = metrics.height();
    const int gap = unit / 3;
    const int badgeSide = unit;
    const int iconSide = unit * 5 / 4;
    StepLayout layout;
    layout.gutter = QRect(row.left(), row.top(), gutterWidth(metrics), row.height());
    layout.number =
        QRect(layout.gutter.right() + gap, row.top(), numberWidth(metrics, steps), row.height());
    layout.icon = centred(row, layout.number.right() + 1 + 2 * gap, iconSide);
    int right = row.right() - gap;
    if (hasRun) {
        const int width = metrics.horizontalAdvance(QStringLiteral("000.0 ms"));
        layout.duration = QRect(right - width + 1, row.top(), width, row.height());
        right -= width + gap;
    }
    for (int i = 0; i < badges; ++i) {
        layout.badges.prepend(centred(row, right - badgeSide + 1, badgeSide));
        right -= badgeSide + unit / 2;
    }
    const int left = layout.icon.right() + 1 + gap + gap / 2;
    layout.summary = QRect(left, row.top(), qMax(0, right - left + 1), row.height());
    return layout;
}

int StepLayout::gutterWidth(const QFontMetrics &metrics)
{
    return metrics.height() * 5 / 4;
}

int StepLayout::rowHeight(const QFontMetrics &metrics)
{
    return metrics.height() * 15 / 8;
}
