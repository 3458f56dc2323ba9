#include "refhost/workbench/editor/EditorPanel.h"

#include "refhost/workbench/window/Workbench.h"

EditorPanel::EditorPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
{
    Q_UNUSED(m_bench)
}
