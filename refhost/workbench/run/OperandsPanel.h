#pragma once

#include "refhost/workbench/run/StepRecord.h"

#include <QWidget>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;
struct Workbench;

/// The operands of the current step in the last run, as written and as found.
class OperandsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit OperandsPanel(Workbench &bench, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void createView();
    void scheduleUpdate();
    void update();
    QString statusText(const StepRecord *record) const;
    void fill(const StepRecord &record);
    QTreeWidgetItem *addSection(const QString &title);
    void addOperand(QTreeWidgetItem *section, const OperandRecord &operand);
    void addWrite(QTreeWidgetItem *section, const WriteRecord &write);
    void addWarning(QTreeWidgetItem *section, const QString &line);
    void goToItem(const QTreeWidgetItem *item) const;
    void copyValue() const;

    Workbench &m_bench;
    QLabel *m_status;
    QTreeWidget *m_view = nullptr;
    bool m_isLate = false; ///< whether an update is on its way
};
