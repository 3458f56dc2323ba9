#include "refhost/workbench/document/TaskDocument.h"

#include "refhost/workbench/document/StateCommand.h"

#include "Operation.h"

#include <QScopedValueRollback>

namespace {

bool isStale(const QUndoCommand *command)
{
    const auto *const own = dynamic_cast<const DocumentCommand *>(command);
    return own && own->isStale();
}

void addTypes(const TaskState &state, QSet<QString> &types)
{
    for (const StepState &step : state.steps)
        types.insert(step.operation->typeId());
}

} // namespace

TaskDocument::TaskDocument(QObject *parent)
    : QObject(parent)
{
}

void TaskDocument::change(const QString &text, const TaskState &next, const EditPlace &place)
{
    endTyping();
    m_undoStack.push(new StateCommand(*this, text, next, place, 0));
}

void TaskDocument::type(const QString &text, const TaskState &next, const EditPlace &place)
{
    if (place != m_typingPlace) {
        m_typingPlace = place;
        ++m_session;
    }
    m_undoStack.push(new StateCommand(*this, text, next, place, m_session));
}

void TaskDocument::endTyping()
{
    m_typingPlace = {};
}

void TaskDocument::undo()
{
    endTyping();
    const QScopedValueRollback<bool> travelling(m_travelling, true);
    while (m_undoStack.canUndo() && isStale(m_undoStack.command(m_undoStack.index() - 1)))
        m_undoStack.undo();
    m_undoStack.undo();
}

void TaskDocument::redo()
{
    endTyping();
    const QScopedValueRollback<bool> travelling(m_travelling, true);
    while (m_undoStack.canRedo() && isStale(m_undoStack.command(m_undoStack.index())))
        m_undoStack.redo();
    m_undoStack.redo();
}

void TaskDocument::markSaved()
{
    endTyping();
    m_undoStack.setClean();
    m_savedState = m_state;
    m_neverSaved = false;
    updateModified();
}

void TaskDocument::replace(const TaskState &state, bool modified)
{
    endTyping();
    m_undoStack.clear();
    m_savedState = migrated(state);
    m_neverSaved = modified;
    setState(state);
    Q_EMIT replaced();
}

void TaskDocument::setStepMigration(const StepMigration &newer)
{
    m_migration = newer;
}

void TaskDocument::migrateSteps()
{
    m_savedState = migrated(m_savedState);
    setState(m_state);
}

QSet<QString> TaskDocument::usedTypes() const
{
    QSet<QString> types;
    addTypes(m_state, types);
    addTypes(m_savedState, types);
    for (int i = 0; i < m_undoStack.count(); ++i) {
        if (const auto *const command =
                dynamic_cast<const StateCommand *>(m_undoStack.command(i))) {
            addTypes(command->before(), types);
            addTypes(command->after(), types);
        }
    }
    return types;
}

TaskState TaskDocument::migrated(const TaskState &state) const
{
    TaskState next = state;
    for (int row = 0; m_migration && row < next.steps.size(); ++row) {
        const std::shared_ptr<const Operation> &present = state.steps.at(row).operation;
        const std::shared_ptr<const Operation> newer = m_migration(present);
        if (newer != present)
            next.steps[row].operation = newer;
    }
    return next;
}

void TaskDocument::apply(const TaskState &state, const EditPlace &place)
{
    setState(state);
    if (m_travelling)
        Q_EMIT placeWanted(place);
}

void TaskDocument::setState(const TaskState &state)
{
    const TaskState before = m_state;
    m_state = migrated(state);
    Q_EMIT changed(before);
    updateModified();
}

void TaskDocument::updateModified()
{
    const bool modified = m_neverSaved || !sameTask(m_state, m_savedState);
    if (modified == m_modified)
        return;
    m_modified = modified;
    Q_EMIT modifiedChanged(modified);
}
