#pragma once

#include <QtGlobal>

/// Marks what the host's library offers to plug-ins: exported while the library itself is built,
/// imported everywhere else.
#ifdef OPERATIONCORE_BUILD
#    define OPERATIONCORE_EXPORT Q_DECL_EXPORT
#else
#    define OPERATIONCORE_EXPORT Q_DECL_IMPORT
#endif
