#include "refhost/workbench/window/Workbench.h"

Workbench::Workbench(const QStringList &pluginFiles)
    : library(pluginFiles)
    , run(document)
    , check(document, library)
    , place(document)
{
}
