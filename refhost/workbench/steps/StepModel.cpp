#include "refhost/workbench/steps/StepModel.h"

#include "refhost/workbench/edits/StepEdits.h"
#include "refhost/workbench/edits/TaskClipboard.h"
#include "refhost/workbench/look/OperationIcon.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/steps/StepDrag.h"
#include "refhost/workbench/values/DurationText.h"
#include "refhost/workbench/values/VisibleText.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QMimeData>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

/// A run may finish thousands of steps a second; nobody sees them one by one.
constexpr int runMilliseconds = 40;
constexpr int summaryLimit = 500;

int worstSeverity(const QList<Finding> &findings)
{
    int worst = -1;
    for (const Finding &finding : findings) {
        const int severity = static_cast<int>(finding.severity);
        worst = worst < 0 ? severity : std::min(worst, severity);
    }
    return worst;
}

bool looksTheSame(const StepState &left, const StepState &right)
{
    return left.id == right.id && left.operation == right.operation &&
           left.breakpoint == right.breakpoint;
}

} // namespace

StepModel::StepModel(Workbench &bench, QObject *parent)
    : RowModel(parent)
    , m_bench(bench)
{
    m_runTimer.setSingleShot(true);
    m_runTimer.setInterval(runMilliseconds);
    connect(&m_runTimer, &QTimer::timeout, this, &StepModel::announceAll);
    connect(&bench.document, &TaskDocument::changed, this, &StepModel::follow);
    connect(&bench.check, &LiveCheck::updated, this, &StepModel::announceAll);
    connect(&bench.run, &RunSession::stateChanged, this, &StepModel::announceAll);
    connect(&bench.run, &RunSession::stepFinished, this, [this] {
        if (!m_runTimer.isActive())
            m_runTimer.start();
    });
    connect(&bench.library, &PluginLibrary::reloaded, this, [this] {
        m_icons.clear();
        announceAll();
    });
    follow({});
}

int StepModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant StepModel::data(const QModelIndex &index, int role) const
{
    const QVector<StepState> &steps = m_bench.document.state().steps;
    // While rows come and go the document is ahead of them.
    if (!index.isValid() || index.row() >= steps.size())
        return {};
    const StepState &step = steps.at(index.row());
    return role < Qt::UserRole ? shown(step, index.row(), role) : marked(step, role);
}

QVariant StepModel::shown(const StepState &step, int row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return visibleText(step.operation->toString(), summaryLimit);
    case Qt::DecorationRole:
        return icon(step);
    case Qt::ToolTipRole:
        return shownToolTip(step.operation->description());
    case Qt::AccessibleTextRole:
        return accessibleText(step, row);
    default:
        return {};
    }
}

QVariant StepModel::marked(const StepState &step, int role) const
{
    const StepRecord *const record = m_bench.run.lastRecord(step.id);
    switch (role) {
    case StepRole::Breakpoint:
        return step.breakpoint;
    case StepRole::Next:
        return m_bench.run.state() == RunSession::State::Paused &&
               m_bench.run.nextStep() == step.id;
    case StepRole::Severity:
        return worstSeverity(m_bench.check.findingsOf(step.id));
    case StepRole::Findings:
        return findings(step.id);
    case StepRole::Warnings:
        return record ? record->warnings : QStringList();
    case StepRole::Duration:
        return record ? durationText(record->nanoseconds) : QString();
    case StepRole::HasRun:
        return !m_bench.run.records().isEmpty();
    default:
        return {};
    }
}

Qt::ItemFlags StepModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren;
}

QStringList StepModel::mimeTypes() const
{
    return {packedTaskMimeType(), QStringLiteral("text/plain")};
}

QMimeData *StepModel::mimeData(const QModelIndexList &indexes) const
{
    QVector<int> steps;
    for (const QModelIndex &index : indexes)
        steps.append(idAt(index.row()));
    std::unique_ptr<QMimeData> mime = StepEdits(m_bench).mime(steps);
    noteDraggedSteps(*mime, steps);
    return mime.release();
}

Qt::DropActions StepModel::supportedDragActions() const
{
    return Qt::CopyAction | Qt::MoveAction;
}

Qt::DropActions StepModel::supportedDropActions() const
{
    return Qt::CopyAction | Qt::MoveAction;
}

void StepModel::follow(const TaskState &before)
{
    const QScopedValueRollback<bool> following(m_isFollowing, true);
    QVector<int> ids;
    for (const StepState &step : m_bench.document.state().steps)
        ids.append(step.id);
    setIds(ids);
    announceChanged(before);
}

/// Tells of the rows that look different now, from the first to the last.
void StepModel::announceChanged(const TaskState &before)
{
    const QVector<StepState> &now = m_bench.document.state().steps;
    if (now.isEmpty())
        return;
    const auto first = std::mismatch(now.cbegin(), now.cend(), before.steps.cbegin(),
                                     before.steps.cend(), looksTheSame);
    if (first.first == now.cend())
        return;
    // When steps came or went, those behind them have another number.
    int last = now.size() - 1;
    if (now.size() == before.steps.size()) {
        while (looksTheSame(now.at(last), before.steps.at(last)))
            --last;
    }
    Q_EMIT dataChanged(index(static_cast<int>(first.first - now.cbegin()), 0), index(last, 0));
}

QIcon StepModel::icon(const StepState &step) const
{
    const QString typeId = step.operation->typeId();
    if (!m_icons.contains(typeId))
        m_icons.insert(typeId, operationIcon(*step.operation));
    return m_icons.value(typeId);
}

QString StepModel::accessibleText(const StepState &step, int row) const
{
    QStringList parts{tr("第 %1 步").arg(row + 1),
                      visibleText(step.operation->toString(), summaryLimit)};
    if (step.breakpoint)
        parts.append(tr("断点"));
    if (marked(step, StepRole::Next).toBool())
        parts.append(tr("将要运行"));
    parts += findings(step.id);
    parts += marked(step, StepRole::Warnings).toStringList();
    return parts.join(QStringLiteral(", "));
}

QStringList StepModel::findings(int step) const
{
    QStringList messages;
    const QList<Finding> findings = m_bench.check.findingsOf(step);
    for (const Finding &finding : findings)
        messages.append(finding.message);
    return messages;
}
