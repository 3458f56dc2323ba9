#pragma once

#include "refhost/workbench/document/RowModel.h"

#include <QHash>
#include <QIcon>
#include <QTimer>

struct StepRecord;
struct StepState;
class TaskState;
struct Workbench;

/// What a list of steps shows besides summary, icon and sentence.
namespace StepRole {
enum {
    Breakpoint = Qt::UserRole, ///< bool
    Next,                      ///< bool: a run is halted before this step
    Severity,                  ///< int: that of the worst finding as a `Severity`, -1 without one
    Findings,                  ///< QStringList: what the findings say
    Warnings,                  ///< QStringList: the lines that the last run of the step logged
    Duration,                  ///< QString: how long it took, empty when it has not run
    HasRun                     ///< bool: whether any step has run
};
}

/// The steps of the document, one row each. Everything is worked out when it is asked for, so that
/// a change costs the same whatever the number of steps that are out of sight.
class StepModel : public RowModel
{
    Q_OBJECT

public:
    /// The workbench has to outlive the model.
    explicit StepModel(Workbench &bench, QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override;
    Qt::DropActions supportedDropActions() const override;

    /// Whether the rows are just being brought to the state of the document. What views select
    /// meanwhile is not what a user selects.
    bool isFollowing() const { return m_isFollowing; }

private:
    void follow(const TaskState &before);
    void announceChanged(const TaskState &before);
    QVariant shown(const StepState &step, int row, int role) const;
    QVariant marked(const StepState &step, int role) const;
    QIcon icon(const StepState &step) const;
    QString accessibleText(const StepState &step, int row) const;
    QStringList findings(int step) const;

    Workbench &m_bench;
    QTimer m_runTimer;
    mutable QHash<QString, QIcon> m_icons; ///< by type identifier
    bool m_isFollowing = false;
};
