#pragma once

#include "refhost/workbench/document/TaskState.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

class QMimeData;
struct Workbench;

/// What can be done to the list of steps; each edit is one step of undo, and one that would change
/// nothing is none. Steps that come are placed in front of what stands at `row`, and the last of
/// them becomes the current one.
class StepEdits
{
    Q_DECLARE_TR_FUNCTIONS(StepEdits)

public:
    /// The workbench has to outlive this object.
    explicit StepEdits(Workbench &bench);

    /// The row behind the current step, or behind the last when there is none.
    int rowBehindCurrent() const;

    /// Adds a step of that type and goes to its first field.
    void add(const QString &typeId, int row) const;

    void remove(const QVector<int> &steps) const;
    /// Removes steps that are on the clipboard now.
    void cut(const QVector<int> &steps) const;
    /// Puts copies of the steps at `row`.
    void duplicate(const QVector<int> &steps, int row) const;
    /// Brings the steps together, in their order, in front of what stands at `row` now.
    void move(const QVector<int> &steps, int row) const;
    /// Sets a breakpoint on all of the steps, or takes them all away when all have one.
    void toggleBreakpoints(const QVector<int> &steps) const;

    /// The steps for the clipboard or for another program.
    std::unique_ptr<QMimeData> mime(const QVector<int> &steps) const;
    /// Puts the steps in `mime` at `row` and declares those of their variables that are missing.
    /// What stands in the way, for people, when nothing can be pasted.
    std::optional<QString> paste(const QMimeData &mime, int row) const;

private:
    void insert(const QString &text, const QVector<StepState> &steps, int row,
                const QList<TaskVariable> &variables) const;

    Workbench &m_bench;
};
