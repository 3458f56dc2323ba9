#pragma once

#include <QTableView>

class CellEdit;
class CellRules;

/// A table whose cells are edited in place, or open a window of their own. An editor with something
/// in it that the rules refuse stays open and says why; nothing that was typed is lost silently.
class CellTable : public QTableView
{
    Q_OBJECT

public:
    explicit CellTable(QWidget *parent = nullptr);

    /// The model has to be the rules' own. Both have to outlive the table.
    void setRules(QAbstractItemModel *model, const CellRules *rules);

    /// Takes over what is being typed at the moment. False when it is refused; then it is still
    /// there, with the reason beside it.
    bool commitEditing();

    /// Begins to edit the cell, in place or in a window.
    void begin(const QModelIndex &cell);

Q_SIGNALS:
    /// The value of a cell is to be edited in a window of its own.
    void openWanted(const QModelIndex &cell);

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

protected Q_SLOTS:
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    QString refusalOf(const CellEdit *editor) const;
    void fitRows();

    const CellRules *m_rules = nullptr;
};
