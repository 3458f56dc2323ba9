#include "refhost/workbench/variables/CellDelegate.h"

#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/variables/CellEdit.h"
#include "refhost/workbench/variables/CellRules.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QTimer>

namespace {

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &option)
{
    if (!(option.state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

bool isSelected(const QStyleOptionViewItem &option)
{
    return option.state & QStyle::State_Selected;
}

/// The rectangle for texts within a cell.
QRect inner(const QStyleOptionViewItem &option)
{
    const int margin =
        option.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget);
    return option.rect.adjusted(margin + 1, 0, -margin - 1, 0);
}

QColor textColor(const QStyleOptionViewItem &option)
{
    return option.palette.color(groupOf(option),
                                isSelected(option) ? QPalette::HighlightedText : QPalette::Text);
}

/// What of the detail fits into `width`: all of it, its number, or nothing; the tooltip has it all.
QString fittingDetail(const QString &detail, const QFontMetrics &metrics, int width)
{
    static const QRegularExpression number(QStringLiteral("[0-9,]+"));
    for (const QString &text : {detail, number.match(detail).captured()}) {
        if (metrics.horizontalAdvance(text) <= width)
            return text;
    }
    return {};
}

/// Draws the detail at the end of the cell, in half of it at most, and gives the rectangle that is
/// left for the text.
QRect paintDetail(QPainter &painter, const QStyleOptionViewItem &option, const QString &detail)
{
    QRect rect = inner(option);
    const QFontMetrics metrics(option.font);
    // Other fonts may stand in for some characters, so a little more than they say.
    const int spare = metrics.averageCharWidth() / 2;
    const QString text = fittingDetail(detail, metrics, rect.width() / 2 - spare);
    if (text.isEmpty())
        return rect;
    QRect end = rect;
    end.setLeft(rect.right() - metrics.horizontalAdvance(text) - spare + 1);
    painter.setPen(isSelected(option) ? textColor(option) : Shades::of(option.palette).quiet);
    painter.drawText(end, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, text);
    rect.setRight(end.left() - metrics.averageCharWidth());
    return rect;
}

} // namespace

QWidget *CellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    Q_UNUSED(option)
    const QStringList choices = index.data(ChoicesRole).toStringList();
    return choices.isEmpty() ? new CellEdit(index, parent) : createChoice(parent, choices);
}

QWidget *CellDelegate::createChoice(QWidget *parent, const QStringList &choices) const
{
    auto *const box = new QComboBox(parent);
    box->setObjectName(QStringLiteral("choice"));
    box->addItems(choices);
    connect(box, qOverload<int>(&QComboBox::activated), this, [this, box] {
        auto *const self = const_cast<CellDelegate *>(this); // signals of a const function
        Q_EMIT self->commitData(box);
        Q_EMIT self->closeEditor(box);
    });
    QTimer::singleShot(0, box, &QComboBox::showPopup);
    return box;
}

void CellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto *const edit = qobject_cast<CellEdit *>(editor))
        edit->begin(text);
    else if (auto *const box = qobject_cast<QComboBox *>(editor))
        box->setCurrentIndex(box->findText(text));
}

void CellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                const QModelIndex &index) const
{
    const auto *const edit = qobject_cast<CellEdit *>(editor);
    if (edit && edit->isChanged())
        model->setData(index, edit->text());
    const auto *const box = qobject_cast<QComboBox *>(editor);
    if (box && box->currentText() != index.data(Qt::EditRole).toString())
        model->setData(index, box->currentText());
}

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const QString detail = index.data(DetailRole).toString();
    if (detail.isEmpty()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString text = cell.text;
    cell.text.clear();
    cell.widget->style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    painter->save();
    painter->setFont(cell.font);
    const QRect rest = paintDetail(*painter, cell, detail);
    painter->setPen(textColor(cell));
    painter->drawText(rest, static_cast<int>(cell.displayAlignment) | Qt::TextSingleLine,
                      QFontMetrics(cell.font).elidedText(text, Qt::ElideRight, rest.width()));
    painter->restore();
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(qMax(size.height(), option.fontMetrics.height() * 3 / 2));
    return size;
}
