#include "refhost/workbench/catalog/CatalogPanel.h"

#include "refhost/workbench/window/Workbench.h"

CatalogPanel::CatalogPanel(Workbench &bench, QWidget *parent)
    : QWidget(parent)
    , m_bench(bench)
{
    Q_UNUSED(m_bench)
}
