#pragma once

#include <QWidget>

struct Workbench;

/// The variables of the task: name, type, start value and current value.
class VariablesPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit VariablesPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    Workbench &m_bench;
};
