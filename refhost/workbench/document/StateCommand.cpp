#include "refhost/workbench/document/StateCommand.h"

#include "refhost/workbench/document/TaskDocument.h"

StateCommand::StateCommand(TaskDocument &document, const QString &text, TaskState after,
                           EditPlace place, int session)
    : DocumentCommand(text)
    , m_document(document)
    , m_before(document.state())
    , m_after(std::move(after))
    , m_place(std::move(place))
    , m_session(session)
{
}

void StateCommand::undo()
{
    m_document.apply(m_before, m_place);
}

void StateCommand::redo()
{
    m_document.apply(m_after, m_place);
}

int StateCommand::id() const
{
    return m_session == 0 ? -1 : m_session;
}

bool StateCommand::mergeWith(const QUndoCommand *other)
{
    // QUndoStack asks only for commands of the same identifier, and only StateCommand has one.
    m_after = static_cast<const StateCommand *>(other)->m_after;
    return true;
}
