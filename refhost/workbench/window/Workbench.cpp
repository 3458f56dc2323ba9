#include "refhost/workbench/window/Workbench.h"

Workbench::Workbench(const QStringList &pluginFiles)
    : library(pluginFiles)
    , migrator(document, library)
    , run(document)
    , check(document, library)
    , place(document)
{
}
