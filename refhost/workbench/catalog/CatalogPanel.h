#pragma once

#include <QWidget>

struct Workbench;

/// The kinds of steps that can be added, by group, with a filter; and the plug-ins that failed to
/// load.
class CatalogPanel : public QWidget
{
    Q_OBJECT

public:
    /// The workbench has to outlive the panel.
    explicit CatalogPanel(Workbench &bench, QWidget *parent = nullptr);

private:
    Workbench &m_bench;
};
