#include "refhost/workbench/steps/StepView.h"

#include "refhost/engine/OperationSchema.h"
#include "refhost/workbench/edits/OperationMime.h"
#include "refhost/workbench/edits/TaskClipboard.h"
#include "refhost/workbench/look/EmptyHint.h"
#include "refhost/workbench/steps/StepDelegate.h"
#include "refhost/workbench/steps/StepDrag.h"
#include "refhost/workbench/steps/StepLayout.h"
#include "refhost/workbench/steps/StepModel.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

bool isWelcome(const QMimeData &mime)
{
    return !mime.hasUrls() && (mime.hasFormat(operationMimeType()) || mayHoldTask(mime));
}

/// Steps of this window move, unless the user holds the key for a copy; all others are copied.
Qt::DropAction actionOf(const QDropEvent &event)
{
    const bool movesSteps = !draggedSteps(*event.mimeData()).isEmpty() &&
                            !event.keyboardModifiers().testFlag(Qt::ControlModifier);
    return movesSteps ? Qt::MoveAction : Qt::CopyAction;
}

void accept(QDropEvent &event)
{
    event.setDropAction(actionOf(event));
    event.accept();
}

} // namespace

StepView::StepView(Workbench &bench, QWidget *parent)
    : QListView(parent)
    , m_bench(bench)
    , m_edits(bench)
    , m_model(new StepModel(bench, this))
{
    setObjectName(QStringLiteral("steps.list"));
    setAccessibleName(tr("步骤"));
    setModel(m_model);
    setItemDelegate(new StepDelegate(this));
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    // The base class would show it on rows as well as between them.
    setDropIndicatorShown(false);
    auto *const hint = new EmptyHint(tr("双击左侧的操作，或将其拖到这里"), *m_model, *this);
    hint->setObjectName(QStringLiteral("steps.hint"));
}

QVector<int> StepView::selectedSteps() const
{
    QVector<int> rows;
    const QModelIndexList selected = selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    std::transform(rows.cbegin(), rows.cend(), rows.begin(),
                   [this](int row) { return m_model->idAt(row); });
    return rows;
}

void StepView::keyboardSearch(const QString &search)
{
    if (!m_sinceTyped.isValid() || m_sinceTyped.hasExpired(QApplication::keyboardInputInterval()))
        m_typedNumber.clear();
    m_sinceTyped.start();
    m_typedNumber += search;
    bool isNumber = false;
    const int row = m_typedNumber.toInt(&isNumber) - 1;
    if (!isNumber)
        m_typedNumber.clear();
    else if (row >= 0 && row < m_model->rowCount())
        setCurrentIndex(m_model->index(row, 0));
}

void StepView::paintEvent(QPaintEvent *event)
{
    const QRect last = visualRect(m_model->index(m_model->rowCount() - 1, 0));
    if (last.isValid())
        StepDelegate::paintEmptyGutter(*viewport(), last.bottom() + 1);
    QListView::paintEvent(event);
    if (m_dropRow < 0)
        return;
    const bool isBehind = m_dropRow >= m_model->rowCount();
    const int y = isBehind ? last.bottom() + 1 : visualRect(m_model->index(m_dropRow, 0)).top();
    const int thickness = qMax(2, fontMetrics().height() / 8);
    const int left = StepLayout::gutterWidth(fontMetrics());
    QPainter(viewport())
        .fillRect(left, qMax(0, y - thickness / 2), viewport()->width() - left, thickness,
                  palette().color(QPalette::Highlight));
}

void StepView::mousePressEvent(QMouseEvent *event)
{
    if (!toggleBreakpointAt(*event))
        QListView::mousePressEvent(event);
}

void StepView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (toggleBreakpointAt(*event))
        return;
    const QModelIndex index = indexAt(event->pos());
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        editStep(index);
}

void StepView::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && !event->modifiers().testFlag(Qt::ControlModifier))
        editStep(currentIndex());
    else
        QListView::keyPressEvent(event);
}

void StepView::dragEnterEvent(QDragEnterEvent *event)
{
    if (!isWelcome(*event->mimeData())) {
        event->ignore();
        return;
    }
    setState(DraggingState);
    setDropRow(dropRowAt(event->pos()));
    accept(*event);
}

void StepView::dragMoveEvent(QDragMoveEvent *event)
{
    if (!isWelcome(*event->mimeData())) {
        event->ignore();
        return;
    }
    setDropRow(dropRowAt(event->pos()));
    accept(*event);
    const QRect calm = viewport()->rect().adjusted(0, autoScrollMargin(), 0, -autoScrollMargin());
    if (!calm.contains(event->pos()))
        startAutoScroll();
}

void StepView::dragLeaveEvent(QDragLeaveEvent *event)
{
    QListView::dragLeaveEvent(event);
    setDropRow(-1);
}

void StepView::dropEvent(QDropEvent *event)
{
    stopAutoScroll();
    setState(NoState);
    setDropRow(-1);
    if (!isWelcome(*event->mimeData())) {
        event->ignore();
        return;
    }
    accept(*event);
    drop(*event, dropRowAt(event->pos()));
}

int StepView::dropRowAt(const QPoint &position) const
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid())
        return m_model->rowCount();
    return index.row() + (position.y() > visualRect(index).center().y() ? 1 : 0);
}

void StepView::setDropRow(int row)
{
    if (row == m_dropRow)
        return;
    m_dropRow = row;
    viewport()->update();
}

/// Whether the event was on the gutter, and is dealt with.
bool StepView::toggleBreakpointAt(const QMouseEvent &event)
{
    const QModelIndex index = indexAt(event.pos());
    if (!index.isValid() || event.button() != Qt::LeftButton ||
        event.x() >= StepLayout::gutterWidth(fontMetrics()))
        return false;
    m_edits.toggleBreakpoints({m_model->idAt(index.row())});
    return true;
}

void StepView::editStep(const QModelIndex &index)
{
    const StepState *const step = m_bench.document.state().step(m_model->idAt(index.row()));
    if (!index.isValid() || !step)
        return;
    const QStringList names = OperationSchema(*step->operation).propertyNames();
    m_bench.place.goTo({step->id, names.value(0), 0});
}

void StepView::drop(const QDropEvent &event, int row)
{
    const QMimeData &mime = *event.mimeData();
    const QVector<int> steps = draggedSteps(mime);
    if (mime.hasFormat(operationMimeType())) {
        m_edits.add(operationFromMime(mime), row);
    } else if (!steps.isEmpty()) {
        if (event.dropAction() == Qt::MoveAction)
            m_edits.move(steps, row);
        else
            m_edits.duplicate(steps, row);
    } else if (const auto problem = m_edits.paste(mime, row)) {
        Q_EMIT refused(*problem);
    }
}
