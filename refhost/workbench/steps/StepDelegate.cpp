#include "refhost/workbench/steps/StepDelegate.h"

#include "refhost/engine/check/Finding.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/look/SymbolPixmap.h"
#include "refhost/workbench/steps/StepLayout.h"
#include "refhost/workbench/steps/StepModel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

namespace {

/// A sign at the end of the line, and what it stands for.
struct Badge
{
    QString symbol;
    QColor color;
    QStringList lines;
    bool isOfRun = false; ///< what the step logged, and not a finding
};

Badge findingBadge(int severity, const QStringList &lines, const Shades &shades)
{
    if (severity == static_cast<int>(Severity::Error))
        return {QStringLiteral("error"), shades.error, lines};
    if (severity == static_cast<int>(Severity::Warning))
        return {QStringLiteral("warning"), shades.warning, lines};
    return {QStringLiteral("note"), shades.note, lines};
}

QVector<Badge> badgesOf(const QModelIndex &index, const Shades &shades)
{
    QVector<Badge> badges;
    const int severity = index.data(StepRole::Severity).toInt();
    if (severity >= 0)
        badges.append(
            findingBadge(severity, index.data(StepRole::Findings).toStringList(), shades));
    const QStringList warnings = index.data(StepRole::Warnings).toStringList();
    if (!warnings.isEmpty())
        badges.append({QStringLiteral("warning"), shades.warning, warnings, true});
    return badges;
}

StepLayout layoutOf(const QStyleOptionViewItem &option, const QModelIndex &index, int badges)
{
    return StepLayout::of(option.rect, option.fontMetrics, index.model()->rowCount(), badges,
                          index.data(StepRole::HasRun).toBool());
}

bool isSelected(const QStyleOptionViewItem &option)
{
    return option.state.testFlag(QStyle::State_Selected);
}

void paintArrow(QPainter &painter, const QRectF &gutter, const QColor &color)
{
    const qreal side = gutter.width() / 2;
    QPainterPath arrow;
    arrow.moveTo(-side / 2, -side / 5);
    arrow.lineTo(0, -side / 5);
    arrow.lineTo(0, -side / 2);
    arrow.lineTo(side / 2 + 1, 0);
    arrow.lineTo(0, side / 2);
    arrow.lineTo(0, side / 5);
    arrow.lineTo(-side / 2, side / 5);
    arrow.closeSubpath();
    painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(color);
    painter.drawPath(arrow.translated(gutter.center()));
}

void paintGutterEdge(QPainter &painter, const QRect &gutter, const Shades &shades)
{
    painter.fillRect(QRect(gutter.right(), gutter.top(), 1, gutter.height()), shades.line);
}

void paintGutter(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                 const QRect &gutter)
{
    const Shades shades = Shades::of(option.palette);
    const bool isNext = index.data(StepRole::Next).toBool();
    painter.fillRect(gutter, isNext ? shades.currentStep : option.palette.color(QPalette::Window));
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = QRectF(gutter).center();
    if (index.data(StepRole::Breakpoint).toBool()) {
        const qreal radius = gutter.width() * (isNext ? 0.42 : 0.3);
        painter.setPen(Qt::NoPen);
        painter.setBrush(shades.breakpoint);
        painter.drawEllipse(centre, radius, radius);
        if (isNext)
            paintArrow(painter, gutter, option.palette.color(QPalette::Base));
    } else if (isNext) {
        paintArrow(painter, gutter, option.palette.color(QPalette::Text));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintGutterEdge(painter, gutter, shades);
}

void paintBackground(QPainter &painter, const QStyleOptionViewItem &option,
                     const QModelIndex &index, const QRect &gutter)
{
    QStyleOptionViewItem item(option);
    item.rect.setLeft(gutter.right() + 1);
    if (index.data(StepRole::Next).toBool())
        painter.fillRect(item.rect, Shades::of(option.palette).currentStep);
    const QStyle &style = option.widget ? *option.widget->style() : *QApplication::style();
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, &painter, option.widget);
    if (!option.state.testFlag(QStyle::State_HasFocus) || isSelected(option))
        return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(item);
    // Else styles show it only after the tabulator has been used.
    focus.state |= QStyle::State_KeyboardFocusChange;
    focus.backgroundColor = option.palette.color(QPalette::Base);
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, option.widget);
}

/// Texts of other scripts are taller; all of a row stand on one line all the same.
int baselineOf(const QRect &row, const QFontMetrics &metrics)
{
    return row.top() + (row.height() + metrics.ascent() - metrics.descent()) / 2;
}

void paintRightAligned(QPainter &painter, const QRect &rect, const QFontMetrics &metrics,
                       const QString &text)
{
    painter.drawText(rect.right() + 1 - metrics.horizontalAdvance(text), baselineOf(rect, metrics),
                     text);
}

void paintTexts(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                const StepLayout &layout)
{
    const QFontMetrics &metrics = option.fontMetrics;
    painter.setFont(option.font);
    painter.setPen(Shades::quietIn(option));
    paintRightAligned(painter, layout.number, metrics, QString::number(index.row() + 1));
    paintRightAligned(painter, layout.duration, metrics, index.data(StepRole::Duration).toString());
    painter.setPen(
        option.palette.color(isSelected(option) ? QPalette::HighlightedText : QPalette::Text));
    const QString summary = index.data(Qt::DisplayRole).toString();
    painter.drawText(layout.summary.left(), baselineOf(layout.summary, metrics),
                     metrics.elidedText(summary, Qt::ElideRight, layout.summary.width()));
}

void paintBadge(QPainter &painter, const QStyleOptionViewItem &option, const QRect &rect,
                const Badge &badge)
{
    if (isSelected(option)) {
        // The colours of the badges are made for the background of the list.
        const int margin = rect.width() / 8;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.palette.color(QPalette::Base));
        painter.drawRoundedRect(rect.adjusted(-margin, -margin, margin, margin), rect.width() / 4.0,
                                rect.width() / 4.0);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    painter.drawPixmap(rect.topLeft(), symbolPixmap(badge.symbol, badge.color, rect.width(),
                                                    painter.device()->devicePixelRatioF()));
}

} // namespace

void StepDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const QVector<Badge> badges = badgesOf(index, Shades::of(option.palette));
    const StepLayout layout = layoutOf(option, index, badges.size());
    painter->save();
    paintBackground(*painter, option, index, layout.gutter);
    paintGutter(*painter, option, index, layout.gutter);
    paintTexts(*painter, option, index, layout);
    index.data(Qt::DecorationRole).value<QIcon>().paint(painter, layout.icon);
    for (int i = 0; i < badges.size(); ++i)
        paintBadge(*painter, option, layout.badges.at(i), badges.at(i));
    painter->restore();
}

QSize StepDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    Q_UNUSED(index)
    // As wide as the view is; the summary is cut off where it ends.
    return {0, StepLayout::rowHeight(option.fontMetrics)};
}

void StepDelegate::paintEmptyGutter(QWidget &viewport, int top)
{
    const QRect gutter(0, top, StepLayout::gutterWidth(viewport.fontMetrics()),
                       viewport.height() - top);
    QPainter painter(&viewport);
    painter.fillRect(gutter, viewport.palette().color(QPalette::Window));
    paintGutterEdge(painter, gutter, Shades::of(viewport.palette()));
}

QString StepDelegate::toolTipOf(bool isOfRun, const QStringList &lines)
{
    const QString heading = isOfRun ? tr("上次运行的警告：") : tr("检查发现：");
    return shownToolTip((QStringList{heading} + lines).join(QLatin1Char('\n')));
}

QString StepDelegate::toolTipAt(const QPoint &position, const QStyleOptionViewItem &option,
                                const QModelIndex &index)
{
    const QVector<Badge> badges = badgesOf(index, Shades::of(option.palette));
    const StepLayout layout = layoutOf(option, index, badges.size());
    for (int i = 0; i < badges.size(); ++i) {
        if (layout.badges.at(i).contains(position))
            return toolTipOf(badges.at(i).isOfRun, badges.at(i).lines);
    }
    if (layout.gutter.contains(position))
        return tr("单击以设置或取消断点");
    return index.data(Qt::ToolTipRole).toString();
}

bool StepDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                             const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), toolTipAt(event->pos(), option, index), view);
    return true;
}
