#include "refhost/workbench/window/Workbench.h"

Workbench::Workbench(const QStringList &pluginFiles, const QString &language)
    : library(pluginFiles, language)
    , migrator(document, library)
    , run(document)
    , check(document, library)
    , place(document)
{
}
