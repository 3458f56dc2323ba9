#include "refhost/workbench/run/FindingsPanel.h"

#include "refhost/workbench/window/Workbench.h"

FindingsPanel::FindingsPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
{
    Q_UNUSED(m_bench)
}
