#include "refhost/workbench/run/RunCursor.h"

#include "refhost/workbench/document/TaskState.h"

namespace {

/// The row in `after` that follows what stood before `row`.
int rowInPlaceOf(int row, const TaskState &before, const TaskState &after)
{
    for (int i = row - 1; i >= 0; --i) {
        const int stays = after.stepRow(before.steps.at(i).id);
        if (stays >= 0)
            return stays + 1;
    }
    return 0;
}

} // namespace

void RunCursor::moveToStart(const TaskState &state)
{
    moveTo(state, 0);
    m_meant = m_step;
}

void RunCursor::moveOn(const TaskState &state)
{
    moveTo(state, m_row + 1);
    m_meant = m_step;
}

void RunCursor::follow(const TaskState &before, const TaskState &after)
{
    if (after.steps.isSharedWith(before.steps))
        return;
    int row = after.stepRow(m_meant);
    if (row < 0)
        row = after.stepRow(m_step);
    if (row < 0)
        row = rowInPlaceOf(m_row, before, after);
    moveTo(after, row);
}

void RunCursor::moveTo(const TaskState &state, int row)
{
    m_row = qMin(row, state.steps.size());
    m_step = state.steps.value(m_row).id;
}
