#pragma once

#include <QWidget>

struct Workbench;

/// The editor of the current step, built from the annotations of its operation.
class EditorPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit EditorPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    Workbench &m_bench;
};
