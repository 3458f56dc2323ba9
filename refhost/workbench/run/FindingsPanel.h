#pragma once

#include <QWidget>

struct Workbench;

/// The likely mistakes in the task.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit FindingsPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    Workbench &m_bench;
};
