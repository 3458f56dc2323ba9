#include "refhost/workbench/edits/StepEdits.h"

#include "refhost/engine/OperationSchema.h"
#include "refhost/workbench/edits/TaskClipboard.h"
#include "refhost/workbench/values/VisibleText.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QMimeData>
#include <QSet>

#include <algorithm>

namespace {

constexpr int messageLimit = 400;

/// The property that the editor shows first, empty when there is none.
QString firstProperty(const Operation &operation)
{
    const OperationSchema schema(operation);
    return schema.properties().isEmpty() ? QString() : schema.properties().constFirst().name;
}

QVector<int> idsOf(const TaskState &state)
{
    QVector<int> ids;
    ids.reserve(state.steps.size());
    for (const StepState &step : state.steps)
        ids.append(step.id);
    return ids;
}

/// The chosen steps in their order in the task.
QVector<StepState> chosenSteps(const TaskState &state, const QVector<int> &steps)
{
    const QSet<int> wanted(steps.cbegin(), steps.cend());
    QVector<StepState> chosen;
    std::copy_if(state.steps.cbegin(), state.steps.cend(), std::back_inserter(chosen),
                 [&wanted](const StepState &step) { return wanted.contains(step.id); });
    return chosen;
}

TaskState withMissingVariables(TaskState state, const QList<TaskVariable> &variables)
{
    for (const TaskVariable &variable : variables) {
        if (!state.variableNamed(variable.name))
            state.variables.append({newStateId(), variable});
    }
    return state;
}

} // namespace

StepEdits::StepEdits(Workbench &bench)
    : m_bench(bench)
{
}

int StepEdits::rowBehindCurrent() const
{
    const TaskState &state = m_bench.document.state();
    const int row = state.stepRow(m_bench.place.step());
    return row < 0 ? state.steps.size() : row + 1;
}

void StepEdits::add(const QString &typeId, int row) const
{
    const CatalogEntry *const entry = m_bench.library.catalog().find(typeId);
    if (!entry)
        return;
    const StepState step = newStep(std::unique_ptr<Operation>(entry->prototype->clone(nullptr)));
    insert(tr("添加步骤“%1”").arg(entry->prototype->typeName()), {step}, row, {});
    m_bench.place.goTo({step.id, firstProperty(*step.operation), 0});
}

void StepEdits::remove(const QVector<int> &steps) const
{
    if (steps.isEmpty())
        return;
    m_bench.document.change(tr("删除 %n 个步骤", nullptr, steps.size()),
                            m_bench.document.state().withoutSteps(steps), {steps.first(), {}, 0});
}

void StepEdits::cut(const QVector<int> &steps) const
{
    if (steps.isEmpty())
        return;
    m_bench.document.change(tr("剪切 %n 个步骤", nullptr, steps.size()),
                            m_bench.document.state().withoutSteps(steps), {steps.first(), {}, 0});
}

void StepEdits::duplicate(const QVector<int> &steps, int row) const
{
    QVector<StepState> copies = chosenSteps(m_bench.document.state(), steps);
    std::transform(copies.cbegin(), copies.cend(), copies.begin(), ::duplicate);
    insert(tr("创建 %n 个步骤的副本", nullptr, copies.size()), copies, row, {});
}

void StepEdits::move(const QVector<int> &steps, int row) const
{
    const TaskState &state = m_bench.document.state();
    const TaskState next = state.withStepsMoved(steps, row);
    if (steps.isEmpty() || idsOf(next) == idsOf(state))
        return;
    m_bench.document.change(tr("移动 %n 个步骤", nullptr, steps.size()), next,
                            {steps.first(), {}, 0});
}

void StepEdits::toggleBreakpoints(const QVector<int> &steps) const
{
    const QVector<StepState> chosen = chosenSteps(m_bench.document.state(), steps);
    if (chosen.isEmpty())
        return;
    const bool areAllSet = std::all_of(chosen.cbegin(), chosen.cend(),
                                       [](const StepState &step) { return step.breakpoint; });
    TaskState next = m_bench.document.state();
    const QSet<int> wanted(steps.cbegin(), steps.cend());
    for (StepState &step : next.steps) {
        if (wanted.contains(step.id))
            step.breakpoint = !areAllSet;
    }
    m_bench.document.change(areAllSet ? tr("取消断点") : tr("设置断点"), next,
                            {chosen.first().id, {}, 0});
}

std::unique_ptr<QMimeData> StepEdits::mime(const QVector<int> &steps) const
{
    const OperationCatalog &catalog = m_bench.library.catalog();
    return mimeFromTask(partialTask(m_bench.document.state(), steps, catalog), catalog);
}

std::optional<QString> StepEdits::paste(const QMimeData &mime, int row) const
{
    if (!mayHoldTask(mime))
        return tr("没有可以粘贴的步骤。");
    Result<Task> pasted = taskFromMime(mime, m_bench.library.catalog());
    if (!pasted) {
        return tr("这段文本不是任务，无法粘贴：%1")
            .arg(visibleText(pasted.problem().toString(), messageLimit));
    }
    if (pasted.value().steps.empty())
        return tr("没有可以粘贴的步骤。");
    const QList<TaskVariable> variables = pasted.value().variables;
    const TaskState state = TaskState::fromTask(std::move(pasted.value()));
    insert(tr("粘贴 %n 个步骤", nullptr, state.steps.size()), state.steps, row, variables);
    return std::nullopt;
}

void StepEdits::insert(const QString &text, const QVector<StepState> &steps, int row,
                       const QList<TaskVariable> &variables) const
{
    if (steps.isEmpty())
        return;
    const TaskState next =
        withMissingVariables(m_bench.document.state(), variables).withSteps(row, steps);
    m_bench.document.change(text, next, {steps.last().id, {}, 0});
    m_bench.place.setStep(steps.last().id);
}
