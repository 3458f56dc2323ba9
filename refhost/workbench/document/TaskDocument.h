#pragma once

#include "refhost/workbench/document/EditPlace.h"
#include "refhost/workbench/document/TaskState.h"

#include <QObject>
#include <QSet>
#include <QUndoStack>

#include <functional>

/// The task in the window. It changes through steps of undo and nothing else, so that whatever is
/// done can be undone.
class TaskDocument : public QObject
{
    Q_OBJECT

public:
    using StepMigration = std::function<std::shared_ptr<const Operation>(
        const std::shared_ptr<const Operation> &operation)>;

    explicit TaskDocument(QObject *parent = nullptr);

    const TaskState &state() const { return m_state; }

    /// Makes `next` the state, as one step of undo called `text`; `place` is where it happens.
    void change(const QString &text, const TaskState &next, const EditPlace &place);

    /// The same for typing: changes at the same place that follow each other are one step of undo,
    /// until `endTyping`.
    void type(const QString &text, const TaskState &next, const EditPlace &place);
    void endTyping();

    /// Lets `newer` bring the operations of every state up to date before it is shown, those of the
    /// history included: it gives the operation to use instead, or the same.
    void setStepMigration(const StepMigration &newer);
    /// Brings the present operations up to date. No step of undo, and no change to the task.
    void migrateSteps();
    /// The types of all steps, those of the history and of the saved task included.
    QSet<QString> usedTypes() const;

    /// For commands that change something else, such as a value of a run.
    QUndoStack &undoStack() { return m_undoStack; }
    const QUndoStack &undoStack() const { return m_undoStack; }

    /// Undo and redo pass over what is stale, and ask for the place of what they have done.
    void undo();
    void redo();

    /// Whether the task differs from the one that was saved or opened last.
    bool isModified() const { return m_modified; }

    /// The state is in a file now.
    void markSaved();

    /// Another task, without a history; `modified` says whether it is still in no file.
    void replace(const TaskState &state, bool modified = false);

Q_SIGNALS:
    /// The state is another one; `before` is what it was.
    void changed(const TaskState &before);
    /// The whole task has been replaced; comes after `changed`.
    void replaced();
    void modifiedChanged(bool modified);
    /// Something was undone or redone there.
    void placeWanted(const EditPlace &place);

private:
    friend class StateCommand;

    void apply(const TaskState &state, const EditPlace &place);
    void setState(const TaskState &state);
    void updateModified();
    TaskState migrated(const TaskState &state) const;

    QUndoStack m_undoStack;
    StepMigration m_migration;
    TaskState m_state;
    TaskState m_savedState;
    bool m_neverSaved = false;
    bool m_modified = false;
    bool m_travelling = false; ///< while something is undone or redone
    EditPlace m_typingPlace;
    int m_session = 0;
};
