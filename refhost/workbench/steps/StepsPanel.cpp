#include "refhost/workbench/steps/StepsPanel.h"

#include "refhost/workbench/steps/MessageLine.h"
#include "refhost/workbench/steps/StepActions.h"
#include "refhost/workbench/steps/StepModel.h"
#include "refhost/workbench/steps/StepView.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QItemSelectionModel>
#include <QMenu>
#include <QSet>
#include <QVBoxLayout>

#include <algorithm>

namespace {

bool haveSameIds(const TaskState &left, const TaskState &right)
{
    const auto sameId = [](const StepState &a, const StepState &b) { return a.id == b.id; };
    return std::equal(left.steps.cbegin(), left.steps.cend(), right.steps.cbegin(),
                      right.steps.cend(), sameId);
}

/// The rows of the steps that were not there before.
QItemSelection newRows(const TaskState &before, const TaskState &now,
                       const QAbstractItemModel &model)
{
    if (haveSameIds(before, now))
        return {};
    QSet<int> known;
    known.reserve(before.steps.size());
    for (const StepState &step : before.steps)
        known.insert(step.id);
    QItemSelection rows;
    for (int row = 0; row < now.steps.size(); ++row) {
        if (known.contains(now.steps.at(row).id))
            continue;
        const QModelIndex index = model.index(row, 0);
        if (!rows.isEmpty() && rows.last().bottom() == row - 1)
            rows.last() = QItemSelectionRange(rows.last().topLeft(), index);
        else
            rows.append(QItemSelectionRange(index));
    }
    return rows;
}

} // namespace

StepsPanel::StepsPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
    , m_view(new StepView(bench, this))
    , m_actions(new StepActions(bench, *m_view, this))
    , m_message(new MessageLine(this))
{
    m_message->setObjectName(QStringLiteral("steps.message"));
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_message);
    setFocusProxy(m_view);
    addActions(m_actions->contextActions());
    connectSelection();
    connect(m_actions, &StepActions::catalogWanted, this, &StepsPanel::catalogWanted);
    connect(m_actions, &StepActions::begun, m_message, &MessageLine::dismiss);
    connect(m_actions, &StepActions::refused, m_message, &MessageLine::tell);
    connect(m_view, &StepView::refused, m_message, &MessageLine::tell);
    connect(&bench.document, &TaskDocument::changed, m_message, &MessageLine::dismiss);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &StepsPanel::showMenu);
}

QList<QAction *> StepsPanel::editActions() const
{
    return m_actions->editActions();
}

void StepsPanel::connectSelection()
{
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &StepsPanel::takeCurrent);
    connect(&m_bench.place, &CurrentPlace::stepChanged, this, &StepsPanel::showStep);
    connect(&m_bench.place, &CurrentPlace::wanted, this, &StepsPanel::showPlace);
    // The model has been connected before and so has its rows by then.
    connect(&m_bench.document, &TaskDocument::changed, this, &StepsPanel::followDocument);
    connect(&m_bench.document, &TaskDocument::replaced, this, [this] {
        QItemSelectionModel &selection = *m_view->selectionModel();
        selection.select(selection.currentIndex(), QItemSelectionModel::ClearAndSelect);
    });
    connect(&m_bench.run, &RunSession::stateChanged, this, &StepsPanel::showHalt);
    showStep(m_bench.place.step());
}

void StepsPanel::takeCurrent(const QModelIndex &current)
{
    const auto *const model = static_cast<const StepModel *>(m_view->model());
    if (!model->isFollowing())
        m_bench.place.setStep(model->idAt(current.row()));
}

/// Makes the row of the step the current one. Where it is selected the selection stays.
void StepsPanel::showStep(int step)
{
    const auto *const model = static_cast<const StepModel *>(m_view->model());
    const QModelIndex index = model->index(model->rowOfId(step), 0);
    QItemSelectionModel &selection = *m_view->selectionModel();
    // A step that has just come may not have its row yet.
    if (index == selection.currentIndex() || (step != 0 && !index.isValid()))
        return;
    const auto flags = selection.isSelected(index) ? QItemSelectionModel::NoUpdate
                                                   : QItemSelectionModel::ClearAndSelect;
    selection.setCurrentIndex(index, flags);
}

void StepsPanel::showPlace(const EditPlace &place)
{
    const auto *const model = static_cast<const StepModel *>(m_view->model());
    const QModelIndex index = model->index(model->rowOfId(place.step), 0);
    if (index.isValid())
        m_view->scrollTo(index);
}

/// A run that halts says where, also when it went far.
void StepsPanel::showHalt()
{
    const auto *const model = static_cast<const StepModel *>(m_view->model());
    if (m_bench.run.state() == RunSession::State::Paused)
        m_view->scrollTo(model->index(model->rowOfId(m_bench.run.nextStep()), 0));
}

/// Steps that come, be it by an undo, are selected.
void StepsPanel::followDocument(const TaskState &before)
{
    QItemSelectionModel &selection = *m_view->selectionModel();
    const QItemSelection rows = newRows(before, m_bench.document.state(), *m_view->model());
    if (!rows.isEmpty())
        selection.select(rows, QItemSelectionModel::ClearAndSelect);
    const auto *const model = static_cast<const StepModel *>(m_view->model());
    const int current = m_bench.place.step();
    if (model->idAt(selection.currentIndex().row()) != current)
        showStep(current);
}

void StepsPanel::showMenu(const QPoint &position)
{
    auto *const menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("steps.menu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(m_actions->contextActions());
    menu->popup(m_view->viewport()->mapToGlobal(position));
}
