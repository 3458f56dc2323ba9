#include "refhost/workbench/document/TaskDocument.h"

#include "refhost/workbench/document/StateCommand.h"

#include <QScopedValueRollback>

namespace {

bool isStale(const QUndoCommand *command)
{
    const auto *const own = dynamic_cast<const DocumentCommand *>(command);
    return own && own->isStale();
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
    m_savedState = state;
    m_neverSaved = modified;
    setState(state);
    Q_EMIT replaced();
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
    m_state = state;
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
