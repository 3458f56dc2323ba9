#include "refhost/workbench/run/LogPanel.h"

#include "refhost/workbench/window/Workbench.h"

LogPanel::LogPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
{
    Q_UNUSED(m_bench)
}
