#pragma once

#include <QAction>
#include <QList>
#include <QWidget>

#include <memory>

class CellTable;
class CurrentValues;
class QCheckBox;
class QLabel;
class VariableModel;
struct EditPlace;
struct TaskVariable;
struct Workbench;

/// The variables of the task: name, type, start value and current value.
class VariablesPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit VariablesPanel(Workbench &bench, QWidget *parent = nullptr);
    /// The same with values other than those of the workbench's run.
    VariablesPanel(Workbench &bench, std::unique_ptr<CurrentValues> values,
                   QWidget *parent = nullptr);
    ~VariablesPanel() override;

    /// What can be done with variables, with separators between the groups. Their shortcuts are
    /// those of the panel.
    QList<QAction *> actions() const { return m_actions; }

    /// Takes over what is being typed in a cell. False when it is refused; then it is still there,
    /// with the reason beside it.
    bool commitEditing();

protected:
    void changeEvent(QEvent *event) override;

private:
    template <typename Slot>
    QAction *addAction(const QString &name, const QString &symbol, const QString &text,
                       const QKeySequence &shortcut, Slot slot);
    void createActions();
    void addSeparator();
    QWidget *createBar();
    QWidget *createFoot();
    void setUpTable();
    void updateActions();
    void showUnused();

    void addVariable();
    void duplicateVariables();
    void deleteVariables();
    void renameVariable();
    void moveVariable(int by);
    void copyValue();
    void openCurrent();
    void openValue(const QModelIndex &cell);
    QVector<int> selectedIds() const;
    void insert(const QString &text, int row, const TaskVariable &variable);
    /// Makes the variable of the place current; whether there is one.
    bool goTo(const EditPlace &place);
    void remark(const QString &text);

    Workbench &m_bench;
    std::unique_ptr<CurrentValues> m_values;
    VariableModel *m_model;
    CellTable *m_table;
    QCheckBox *m_renamesInSteps;
    QLabel *m_remark;
    QList<QAction *> m_actions;
    QAction *m_up = nullptr;
    QAction *m_down = nullptr;
    QList<QAction *> m_onSelection; ///< those that need a variable to work on
};
