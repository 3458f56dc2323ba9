#pragma once

#include "refhost/workbench/document/RowModel.h"
#include "refhost/workbench/variables/CellRules.h"

#include <QSet>

class CurrentValues;
class TaskDocument;
struct TaskVariable;

/// The variables of a task as a table. Every edit is one step of undo.
class VariableModel : public RowModel, public CellRules
{
    Q_OBJECT

public:
    enum Column { NameColumn, TypeColumn, StartColumn, CurrentColumn, ColumnCount };

    /// Both have to outlive the model.
    VariableModel(TaskDocument &document, CurrentValues &values, QObject *parent = nullptr);

    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Takes what a user typed or chose. False when it is refused; then nothing has changed.
    bool setData(const QModelIndex &index, const QVariant &input, int role = Qt::EditRole) override;
    QString refusal(const QModelIndex &cell, const QString &input) const override;

    /// The start value or the current value in a cell, invalid for none.
    QVariant value(const QModelIndex &cell) const;
    /// Makes `value` the start value or the current value. Why it cannot be, for a user; empty when
    /// it has become so.
    QString setValue(const QModelIndex &cell, const QVariant &value);

    /// Whether a variable that gets another name is called so in the steps too.
    void setRenamesInSteps(bool renames) { m_renamesInSteps = renames; }

    /// The variables that are shown quietly as no step uses them.
    void setUnused(const QSet<QString> &names);

private:
    const TaskVariable *variable(const QModelIndex &index) const;
    bool holdsValue(const QModelIndex &index) const;
    QString text(const QModelIndex &index) const;
    QString detail(const QModelIndex &index) const;
    QVariant editText(const QModelIndex &index) const;
    QVariant toolTip(const QModelIndex &index) const;
    QVariant foreground(const QModelIndex &index) const;
    QVariant background(const QModelIndex &index) const;
    QString nameProblem(int id, const QString &name) const;
    void rename(int id, const QString &name);
    void setType(int id, const QString &label);
    void setStartValue(int id, const QVariant &value);
    void follow();

    TaskDocument &m_document;
    CurrentValues &m_values;
    QSet<QString> m_unused;
    bool m_renamesInSteps = true;
};
