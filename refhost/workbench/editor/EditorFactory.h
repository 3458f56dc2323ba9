#pragma once

#include "refhost/engine/PropertySchema.h"

class PropertyEditor;
class QWidget;
class TaskDocument;

/// A new editor for a property: the one its editor word names if its C++ type goes with that, or
/// else the one for the type. The document has to outlive it; it belongs to `parent`.
PropertyEditor *createEditor(const PropertySchema &schema, bool writable,
                             const TaskDocument &document, QWidget *parent);
