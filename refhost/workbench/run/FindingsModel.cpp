#include "refhost/workbench/run/FindingsModel.h"

#include "refhost/engine/OperationSchema.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace {

QString labelOf(const Operation &operation, const QString &property)
{
    const OperationSchema schema(operation);
    const PropertySchema *const found = schema.property(property);
    return found && !found->shownLabel.isEmpty() ? found->shownLabel : property;
}

QIcon severityIcon(Severity severity)
{
    const Shades shades = Shades::of(QGuiApplication::palette());
    switch (severity) {
    case Severity::Error:
        return symbolIcon(QStringLiteral("error"), shades.error);
    case Severity::Warning:
        return symbolIcon(QStringLiteral("warning"), shades.warning);
    case Severity::Note:
        break;
    }
    return symbolIcon(QStringLiteral("note"), shades.note);
}

bool sameFinding(const Finding &left, const Finding &right)
{
    return left.mistake == right.mistake && left.step == right.step &&
           left.property == right.property && left.message == right.message &&
           left.consequence == right.consequence && left.remedy == right.remedy;
}

} // namespace

FindingsModel::FindingsModel(Workbench &bench, QObject *parent)
    : QAbstractTableModel(parent)
    , m_bench(bench)
{
    connect(&bench.check, &LiveCheck::updated, this, &FindingsModel::update);
    update();
}

int FindingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int FindingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FindingsModel::data(const QModelIndex &index, int role) const
{
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return cellText(row, index.column());
    case Qt::ToolTipRole:
        return shownToolTip(
            tr("%1\n%2\n%3").arg(row.finding.message, row.finding.consequence, row.finding.remedy));
    case Qt::DecorationRole:
        return index.column() == MessageColumn ? QVariant(severityIcon(row.finding.severity))
                                               : QVariant();
    case Qt::AccessibleTextRole:
        return cellText(row, index.column());
    case Qt::TextAlignmentRole:
        if (index.column() == NumberColumn)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    default:
        return {};
    }
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole && (section == NumberColumn))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case NumberColumn:
        return tr("步骤");
    case PlaceColumn:
        return tr("位置");
    default:
        return tr("问题");
    }
}

void FindingsModel::update()
{
    QVector<Row> rows;
    for (const Finding &finding : m_bench.check.findings())
        rows.append({finding, m_bench.check.stepOf(finding)});
    const auto same = [](const Row &left, const Row &right) {
        return left.step == right.step && sameFinding(left.finding, right.finding);
    };
    // What the user has selected stays as long as the findings do.
    if (std::equal(rows.cbegin(), rows.cend(), m_rows.cbegin(), m_rows.cend(), same))
        return;
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

QString FindingsModel::cellText(const Row &row, int column) const
{
    switch (column) {
    case NumberColumn:
        return row.finding.step >= 0 ? QString::number(row.finding.step + 1) : QString();
    case PlaceColumn:
        return placeText(row);
    default:
        return row.finding.message;
    }
}

/// The label of the property, or the name of the variable.
QString FindingsModel::placeText(const Row &row) const
{
    const StepState *const step = m_bench.document.state().step(row.step);
    return step ? labelOf(*step->operation, row.finding.property) : row.finding.property;
}
