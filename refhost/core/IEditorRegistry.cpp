#include "IEditorRegistry.h"

IEditorRegistry::~IEditorRegistry() = default;
