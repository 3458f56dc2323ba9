#include "refhost/workbench/run/OperandsPanel.h"

#include "refhost/workbench/window/Workbench.h"

OperandsPanel::OperandsPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
{
    Q_UNUSED(m_bench)
}
