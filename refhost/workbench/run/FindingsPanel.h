#pragma once

#include <QWidget>

class FindingsModel;
class QLabel;
class QModelIndex;
class QStackedLayout;
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
    QWidget *createFindings();
    QWidget *createNothing();
    void update();
    void explain(const QModelIndex &index);
    void goToFinding(const QModelIndex &index) const;

    Workbench &m_bench;
    FindingsModel *m_model;
    QStackedLayout *m_pages;
    QTreeView *m_view = nullptr;
    QLabel *m_explanation = nullptr;
};
