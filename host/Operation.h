#pragma once

#include "OperationCoreExport.h"

#include <QList>
#include <QObject>
#include <QString>

class QDataStream;
class VariableScope;

/// One step of a task, and the base class of everything a plug-in contributes.
///
/// The host builds a step's editor from its meta-object alone: the properties are the step's
/// settings, the class info tells how to edit each of them. It runs a step with `setVariableScope`
/// followed by `doOperation`, and stores it with `saveOperation`. All calls come on one thread at a
/// time; different objects may be used on different threads.
///
/// The order of the data members and of the virtual functions is the binary interface between the
/// host and its plug-ins. It never changes within one interface version.
class OPERATIONCORE_EXPORT Operation : public QObject
{
    Q_OBJECT

public:
    explicit Operation(QObject *parent = nullptr);

    /// Leaves the list of its parent operation and forgets its children. Children are deleted only
    /// as far as they are `QObject` children.
    ~Operation() override;

    /// The group of the catalogue, translated for display.
    virtual QString root() const = 0;
    /// The identifier under which tasks store this kind of step. Never translated, never changed.
    virtual QString typeId() const = 0;
    /// The display name, translated.
    virtual QString typeName() const = 0;
    /// The resource path of the icon, such as ":/images/text_append.svg".
    virtual QString icon() const = 0;

    /// Runs the step on the scope it was given. Changes nothing but variables of that scope, never
    /// throws, reports a failure as one warning line; without a scope it does nothing.
    virtual void doOperation() const = 0;

    /// Writes the step's record at the position of `stream`, in the byte order and version set
    /// there. An override calls the base implementation first, then writes its own fields.
    virtual void saveOperation(QDataStream &stream) const;
    /// Reads what `saveOperation` wrote, in the same order, the base record first. The state of the
    /// stream afterwards tells whether the record was complete.
    virtual void loadOperation(QDataStream &stream);

    /// One line that shows the step in a list.
    virtual QString toString() const = 0;
    /// A translated sentence that tells what the step does.
    virtual QString description() const = 0;

    /// A new step of the same class with equal settings and `baseState`, without a scope. It
    /// belongs to `parent`, or to the caller when there is none.
    virtual Operation *clone(QObject *parent) const = 0;

    /// Whether the step holds other steps. The base class says no.
    virtual bool isContainer() const;
    /// The number of child steps.
    virtual int childCount() const;
    /// The child step at `index`, null when `index` is not within the list.
    virtual Operation *childAt(int index) const;
    /// The list of child steps, for the host to edit. The steps in it are not owned by the list;
    /// whoever places a step in it also calls `setParentOperation` on that step.
    virtual QList<Operation *> &children();
    /// The step that holds this one, null for a step at the top of a task.
    virtual Operation *parentOperation() const;
    /// Records `parent` as the step that holds this one. Takes the step out of the list of the
    /// previous parent; placing it in the new one is the caller's.
    virtual void setParentOperation(Operation *parent);
    /// Sets the variables that `doOperation` works on, here and in all child steps. The scope stays
    /// the caller's and has to outlive its use; null takes it away.
    virtual void setVariableScope(VariableScope *scope);

protected:
    /// State that the host keeps with every step. Plug-ins copy it in `clone` and never read it.
    quint32 baseState = 0;

private:
    QList<Operation *> m_children;
    Operation *m_parentOperation = nullptr;

protected:
    /// The scope to run in, null until `setVariableScope`. Not owned.
    VariableScope *scope = nullptr;

private:
    Q_DISABLE_COPY_MOVE(Operation)
};
