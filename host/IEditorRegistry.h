#pragma once

#include "OperationCoreExport.h"

/// The host's registry of property editors. A plug-in that brings editors of its own receives it in
/// `IOperationPlugin::registerEditors`; what it can register is the host's to declare.
class OPERATIONCORE_EXPORT IEditorRegistry
{
public:
    virtual ~IEditorRegistry();
};
