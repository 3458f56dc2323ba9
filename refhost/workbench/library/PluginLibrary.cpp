#include "refhost/workbench/library/PluginLibrary.h"

#include "Operation.h"

PluginLibrary::PluginLibrary(const QStringList &files, QObject *parent)
    : QObject(parent)
    , m_catalog(std::make_unique<OperationCatalog>(files))
{
}
