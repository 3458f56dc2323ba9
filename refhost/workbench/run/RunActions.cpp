#include "refhost/workbench/run/RunActions.h"

#include "refhost/workbench/window/Workbench.h"

RunActions::RunActions(Workbench &bench, QObject *parent)
    : QObject(parent)
    , m_bench(bench)
{
    Q_UNUSED(m_bench)
}
