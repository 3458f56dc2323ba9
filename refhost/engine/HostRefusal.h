#pragma once

#include <QString>

class IOperationPlugin;

/// Why this host cannot use the plug-in, empty when it can: it is built for another version of the
/// interface, or requires a capability that this host lacks.
QString hostRefusal(const IOperationPlugin &plugin);
