#pragma once

#include "refhost/workbench/document/EditPlace.h"
#include "refhost/workbench/document/TaskState.h"

#include <QUndoCommand>

class TaskDocument;

/// A step of undo. One whose object is gone, such as a value of a run that has moved on, is stale
/// and passed over.
class DocumentCommand : public QUndoCommand
{
public:
    using QUndoCommand::QUndoCommand;

    virtual bool isStale() const { return false; }
};

/// Turns a document from one state into another, and back.
class StateCommand : public DocumentCommand
{
public:
    /// Commands of the same session that follow each other become one; 0 is no session.
    StateCommand(TaskDocument &document, const QString &text, TaskState after, EditPlace place,
                 int session);

    void undo() override;
    void redo() override;
    int id() const override;
    bool mergeWith(const QUndoCommand *other) override;

    const TaskState &before() const { return m_before; }
    const TaskState &after() const { return m_after; }

private:
    TaskDocument &m_document;
    TaskState m_before;
    TaskState m_after;
    EditPlace m_place;
    int m_session;
};
