#pragma once

#include <QWidget>

struct Workbench;

/// The operands of the current step in the last run, as written and as found.
class OperandsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit OperandsPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    Workbench &m_bench;
};
