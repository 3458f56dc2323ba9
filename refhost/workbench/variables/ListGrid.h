#pragma once

#include "refhost/workbench/variables/ValueDialog.h"

#include "VarType.h"

class CellTable;
class GridModel;
class QComboBox;
class QLabel;
class QToolBar;

/// A window with a list or a table, of any size.
class ListGrid : public ValueDialog
{
    Q_OBJECT

public:
    /// `type` is that of a list or a table, `value` such a value or an invalid one. Without a
    /// setter it can be looked at only.
    ListGrid(const QString &title, VarType type, const QVariant &value, ValueSetter setter,
             QWidget *parent);

    QVariant value() const override;
    bool isModified() const override;

    /// Puts the selected cells on the clipboard, as a spreadsheet does.
    void copy();
    /// Takes cells from the clipboard as a spreadsheet has put them there, from the current cell
    /// on.
    void paste();

protected:
    bool commitEditing() override;

private:
    QToolBar *createBar();
    void addRowActions(QToolBar &bar);
    void addColumnActions(QToolBar &bar);
    void addCellActions(QToolBar &bar);
    template <typename Edit>
    void addAction(QToolBar *bar, const QString &name, const QString &symbol, const QString &text,
                   const QKeySequence &shortcut, Edit edit);
    QLayout *createFoot();
    void addRow();
    void addColumn();
    void moveRows(int by);
    void openCell(const QModelIndex &cell);
    void setKind(int kind);
    QVector<int> selectedRows() const;
    QVector<int> selectedColumns() const;
    void goTo(int row, int column);
    void showState();

    GridModel *m_model;
    CellTable *m_table;
    QComboBox *m_kind;
    QLabel *m_size;
};
