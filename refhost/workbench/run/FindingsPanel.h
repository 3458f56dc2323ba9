#pragma once

#include <QWidget>

class FindingsModel;
class QLabel;
class QModelIndex;
class QTreeView;
struct Workbench;

/// The likely mistakes in the task.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit FindingsPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    void setUpView();
    void setUpExplanation();
    void explain(const QModelIndex &index);
    void goToFinding(const QModelIndex &index) const;

    Workbench &m_bench;
    FindingsModel *m_model;
    QTreeView *m_view;
    QLabel *m_explanation;
};
