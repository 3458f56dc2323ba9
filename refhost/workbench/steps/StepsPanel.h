#pragma once

#include <QWidget>

struct Workbench;

/// The steps of the task in their order.
class StepsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit StepsPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    Workbench &m_bench;
};
