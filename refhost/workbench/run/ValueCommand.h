#pragma once

#include "refhost/workbench/document/StateCommand.h"

#include <QPointer>
#include <QVariant>

class RunSession;

/// Gives a variable of a run another value, and the old one back. Stale once the run has moved on.
class ValueCommand : public DocumentCommand
{
public:
    /// `variable` is the identifier of the variable in the document.
    ValueCommand(RunSession &session, const QString &text, int variable, const QVariant &before,
                 const QVariant &after);

    void undo() override;
    void redo() override;
    bool isStale() const override;

private:
    void apply(const QVariant &value);

    QPointer<RunSession> m_session;
    int m_variable;
    QVariant m_before;
    QVariant m_after;
    int m_moment;
    bool m_done = false; ///< whether it was done once, so that what comes is undo or redo
};
