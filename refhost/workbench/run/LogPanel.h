#pragma once

#include <QWidget>

struct Workbench;

/// What the steps of the run did, line by line.
class LogPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit LogPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    Workbench &m_bench;
};
