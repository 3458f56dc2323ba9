#include "refhost/workbench/run/LogModel.h"

#include "refhost/workbench/look/OperationIcon.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/values/DurationText.h"

#include "Operation.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

constexpr int mostLines = 200000;

} // namespace

int LogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_lines.size();
}

int LogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LogModel::data(const QModelIndex &index, int role) const
{
    const LogLine &line = m_lines.at(index.row());
    const Shades shades = Shades::of(QGuiApplication::palette());
    switch (role) {
    case Qt::DisplayRole:
        return cellText(line, index.column());
    case Qt::ToolTipRole:
        return shownToolTip(index.column() == WritesColumn && line.kind == LogLine::Kind::Step
                                ? line.writes
                                : line.text);
    case Qt::DecorationRole:
        return index.column() == TextColumn ? decoration(line) : QVariant();
    case Qt::TextAlignmentRole:
        if (index.column() == NumberColumn || index.column() == TimeColumn)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    case Qt::ForegroundRole:
        if (line.kind == LogLine::Kind::Warning)
            return shades.warning;
        if (line.kind == LogLine::Kind::Event || index.column() != TextColumn)
            return shades.quiet;
        return {};
    default:
        return {};
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole && (section == NumberColumn || section == TimeColumn))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case NumberColumn:
        return tr("步骤");
    case TextColumn:
        return tr("内容");
    case WritesColumn:
        return tr("写入");
    default:
        return tr("用时");
    }
}

void LogModel::append(const QVector<LogLine> &lines)
{
    if (lines.isEmpty())
        return;
    const int tooMany = m_lines.size() + lines.size() - mostLines;
    if (tooMany > 0) {
        // More than needed, since what is left moves up.
        const int gone = qMin(m_lines.size(), tooMany + mostLines / 10);
        beginRemoveRows({}, 0, gone - 1);
        m_lines.remove(0, gone);
        endRemoveRows();
    }
    beginInsertRows({}, m_lines.size(), m_lines.size() + lines.size() - 1);
    m_lines += lines;
    endInsertRows();
}

void LogModel::clear()
{
    beginResetModel();
    m_lines.clear();
    endResetModel();
}

QString LogModel::plainText(int row) const
{
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells.append(cellText(m_lines.at(row), column));
    return cells.join(QLatin1Char('\t'));
}

QString LogModel::cellText(const LogLine &line, int column) const
{
    switch (column) {
    case NumberColumn:
        return line.number > 0 ? QString::number(line.number) : QString();
    case TextColumn:
        return line.text;
    case WritesColumn:
        return line.writes;
    default:
        return line.nanoseconds < 0 ? QString() : durationText(line.nanoseconds);
    }
}

QVariant LogModel::decoration(const LogLine &line) const
{
    if (line.kind == LogLine::Kind::Warning) {
        const Shades shades = Shades::of(QGuiApplication::palette());
        return symbolIcon(QStringLiteral("warning"), shades.warning);
    }
    return line.operation ? QVariant(iconOf(*line.operation)) : QVariant();
}

QIcon LogModel::iconOf(const Operation &operation) const
{
    const QString key = operation.icon() + QLatin1Char('\n') + operation.typeName();
    auto known = m_icons.find(key);
    if (known == m_icons.end())
        known = m_icons.insert(key, operationIcon(operation));
    return *known;
}
