#include "refhost/workbench/variables/VariableModel.h"

#include "refhost/engine/ExactValue.h"
#include "refhost/engine/ValueType.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/document/VariableNames.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/values/TypeWord.h"
#include "refhost/workbench/values/ValuePreview.h"
#include "refhost/workbench/values/VisibleText.h"
#include "refhost/workbench/variables/CurrentValues.h"
#include "refhost/workbench/variables/ValueConversion.h"
#include "refhost/workbench/variables/ValueInput.h"
#include "refhost/workbench/variables/VariableRename.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

constexpr int nameUnits = 120;
constexpr int toolTipUnits = 600;

Shades shades()
{
    return Shades::of(QGuiApplication::palette());
}

QStringList truthValues()
{
    return {QStringLiteral("false"), QStringLiteral("true")};
}

EditPlace placeOf(int id)
{
    return {0, {}, id};
}

} // namespace

VariableModel::VariableModel(TaskDocument &document, CurrentValues &values, QObject *parent)
    : RowModel(parent)
    , m_document(document)
    , m_values(values)
{
    connect(&document, &TaskDocument::changed, this, &VariableModel::follow);
    connect(&values, &CurrentValues::changed, this, &VariableModel::announceAll);
    follow();
}

int VariableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant VariableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || role != Qt::DisplayRole)
        return RowModel::headerData(section, orientation, role);
    const QStringList titles{tr("名称"), tr("类型"), tr("初值"), tr("当前值")};
    return titles.value(section);
}

Qt::ItemFlags VariableModel::flags(const QModelIndex &index) const
{
    const bool isEditable = index.column() != CurrentColumn || m_values.mayChange();
    return RowModel::flags(index) | (isEditable ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

QVariant VariableModel::data(const QModelIndex &index, int role) const
{
    if (!variable(index))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::EditRole:
        return editText(index);
    case Qt::ToolTipRole:
        return toolTip(index);
    case Qt::ForegroundRole:
        return foreground(index);
    case Qt::BackgroundRole:
        return background(index);
    case DetailRole:
        return detail(index);
    case ChoicesRole:
        if (index.column() == TypeColumn)
            return typeWords();
        return holdsValue(index) && variable(index)->type == VarType::Bool ? truthValues()
                                                                           : QStringList();
    case OpensRole:
        return holdsValue(index) && needsViewer(value(index), variable(index)->type);
    default:
        return {};
    }
}

bool VariableModel::setData(const QModelIndex &index, const QVariant &input, int role)
{
    const QString typed = input.toString();
    if (role != Qt::EditRole || !refusal(index, typed).isEmpty())
        return false;
    const int id = idAt(index.row());
    if (index.column() == NameColumn)
        rename(id, typed);
    else if (index.column() == TypeColumn)
        setType(id, typed);
    else
        return setValue(index, valueFromInput(typed, variable(index)->type).value()).isEmpty();
    return true;
}

QString VariableModel::refusal(const QModelIndex &cell, const QString &input) const
{
    const TaskVariable *const edited = variable(cell);
    if (!edited)
        return tr("这个变量已经不存在。");
    if (cell.column() == NameColumn)
        return nameProblem(idAt(cell.row()), input);
    if (cell.column() == TypeColumn)
        return typeFromWord(input) == VarType::None ? tr("没有这个类型。") : QString();
    if (cell.column() == CurrentColumn && !m_values.mayChange())
        return tr("只有在运行暂停或结束后才能修改当前值。");
    const Result<QVariant> value = valueFromInput(input, edited->type);
    return value ? QString() : value.problem().message;
}

QVariant VariableModel::value(const QModelIndex &cell) const
{
    const TaskVariable *const found = variable(cell);
    if (!found || !holdsValue(cell))
        return {};
    return cell.column() == StartColumn ? found->value : m_values.value(found->name);
}

QString VariableModel::setValue(const QModelIndex &cell, const QVariant &value)
{
    const TaskVariable *const found = variable(cell);
    if (!found)
        return tr("这个变量已经不存在。");
    if (value.isValid() && !fitsType(value, found->type))
        return tr("这个值与变量“%1”现在的类型不符。").arg(found->name);
    if (cell.column() == StartColumn) {
        setStartValue(idAt(cell.row()), value);
        return {};
    }
    if (!m_values.mayChange())
        return tr("只有在运行暂停或结束后才能修改当前值。");
    m_values.set(found->name, value.isValid() ? value : emptyValue(found->type));
    return {};
}

void VariableModel::setUnused(const QSet<QString> &names)
{
    if (names == m_unused)
        return;
    m_unused = names;
    announceAll();
}

const TaskVariable *VariableModel::variable(const QModelIndex &index) const
{
    const VariableState *const found =
        index.isValid() ? m_document.state().variable(idAt(index.row())) : nullptr;
    return found ? &found->variable : nullptr;
}

bool VariableModel::holdsValue(const QModelIndex &index) const
{
    return index.column() == StartColumn ||
           (index.column() == CurrentColumn && m_values.areThere());
}

QString VariableModel::text(const QModelIndex &index) const
{
    const TaskVariable &shown = *variable(index);
    if (index.column() == NameColumn)
        return visibleText(shown.name, nameUnits);
    if (index.column() == TypeColumn)
        return typeWord(shown.type);
    return holdsValue(index) ? previewOf(value(index), shown.type).text : QString();
}

QString VariableModel::detail(const QModelIndex &index) const
{
    return holdsValue(index) ? previewOf(value(index), variable(index)->type).detail : QString();
}

QVariant VariableModel::editText(const QModelIndex &index) const
{
    if (index.column() == NameColumn)
        return variable(index)->name;
    if (index.column() == TypeColumn)
        return text(index);
    const QVariant content = value(index);
    const bool isTruth = variable(index)->type == VarType::Bool;
    return isTruth && !content.isValid() ? truthValues().constFirst() : inputText(content);
}

QVariant VariableModel::toolTip(const QModelIndex &index) const
{
    const TaskVariable &shown = *variable(index);
    if (index.column() == NameColumn && m_unused.contains(shown.name))
        return tr("没有步骤使用这个变量。");
    if (!holdsValue(index))
        return {};
    return shownToolTip(previewOf(value(index), shown.type, toolTipUnits).toString());
}

QVariant VariableModel::foreground(const QModelIndex &index) const
{
    const bool isUnused = index.column() == NameColumn && m_unused.contains(variable(index)->name);
    const bool isEmpty =
        holdsValue(index) && previewOf(value(index), variable(index)->type).isEmpty;
    return isUnused || isEmpty ? QVariant(shades().quiet) : QVariant();
}

QVariant VariableModel::background(const QModelIndex &index) const
{
    const bool isWritten = index.column() == CurrentColumn && m_values.areThere() &&
                           m_values.written().contains(variable(index)->name);
    return isWritten ? QVariant(shades().written) : QVariant();
}

QString VariableModel::nameProblem(int id, const QString &name) const
{
    const TaskState &state = m_document.state();
    QString refusal = nameRefusal(state, id, name);
    if (!refusal.isEmpty() || !m_renamesInSteps)
        return refusal;
    const bool breaks = breaksReferences(state, state.variable(id)->variable.name, name);
    return breaks ? tr("步骤中的引用写不出名称“%1”：引用里的名称到“.”为止。").arg(name) : QString();
}

void VariableModel::rename(int id, const QString &name)
{
    const TaskState &state = m_document.state();
    if (state.variable(id)->variable.name == name)
        return;
    m_document.change(tr("重命名变量“%1”").arg(state.variable(id)->variable.name),
                      withVariableRenamed(state, id, name, m_renamesInSteps), placeOf(id));
}

void VariableModel::setType(int id, const QString &label)
{
    TaskVariable edited = m_document.state().variable(id)->variable;
    const VarType type = typeFromWord(label);
    if (edited.type == type)
        return;
    edited.type = type;
    edited.value = convertedValue(edited.value, type);
    m_document.change(tr("修改变量“%1”的类型").arg(edited.name),
                      m_document.state().withVariableChanged(id, edited), placeOf(id));
}

void VariableModel::setStartValue(int id, const QVariant &value)
{
    TaskVariable edited = m_document.state().variable(id)->variable;
    if (isSameValue(edited.value, value))
        return;
    edited.value = value;
    m_document.change(tr("修改变量“%1”的初值").arg(edited.name),
                      m_document.state().withVariableChanged(id, edited), placeOf(id));
}

void VariableModel::follow()
{
    QVector<int> ids;
    for (const VariableState &state : m_document.state().variables)
        ids.append(state.id);
    setIds(ids);
    announceAll();
}
