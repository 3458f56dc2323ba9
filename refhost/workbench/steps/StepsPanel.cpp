#include "refhost/workbench/steps/StepsPanel.h"

#include "refhost/workbench/window/Workbench.h"

StepsPanel::StepsPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
{
    Q_UNUSED(m_bench)
}
