#include "refhost/workbench/run/ValueCommand.h"

#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/run/RunSession.h"

ValueCommand::ValueCommand(RunSession &session, const QString &text, int variable,
                           const QVariant &before, const QVariant &after)
    : DocumentCommand(text)
    , m_session(&session)
    , m_variable(variable)
    , m_before(before)
    , m_after(after)
    , m_moment(session.m_moment)
{
}

void ValueCommand::undo()
{
    apply(m_before);
}

void ValueCommand::redo()
{
    apply(m_after);
}

bool ValueCommand::isStale() const
{
    return !m_session || m_session->m_moment != m_moment;
}

void ValueCommand::apply(const QVariant &value)
{
    if (isStale())
        return;
    m_session->applyValue(m_variable, value);
    if (m_done)
        Q_EMIT m_session->m_document.placeWanted({0, {}, m_variable});
    m_done = true;
}
