#include "refhost/workbench/variables/VariablesPanel.h"

#include "refhost/workbench/window/Workbench.h"

VariablesPanel::VariablesPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
{
    Q_UNUSED(m_bench)
}
