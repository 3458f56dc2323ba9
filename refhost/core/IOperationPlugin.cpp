#include "IOperationPlugin.h"

IOperationPlugin::IOperationPlugin() = default;

IOperationPlugin::~IOperationPlugin() = default;

void IOperationPlugin::registerEditors(IEditorRegistry &registry)
{
    Q_UNUSED(registry)
}
