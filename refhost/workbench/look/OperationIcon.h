#pragma once

#include <QIcon>

class Operation;

/// The icon of an operation, drawn from its resource at any size; a tile with the first letter of
/// its name where the resource is missing or cannot be drawn.
QIcon operationIcon(const Operation &operation);
