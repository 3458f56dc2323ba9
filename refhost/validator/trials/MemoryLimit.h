#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

/// Returns the size of all memory on the heap that is allocated at the moment, in bytes; nothing
/// where the system does not tell, and under a sanitizer, which keeps freed memory.
std::optional<qint64> allocatedBytes();

/// Why the memory of this process cannot be limited, otherwise nothing.
std::optional<QString> memoryLimitObstacle();

/// Lets this process take no more than `mebibytes` on top of the address space it has taken, where
/// that can be done.
void limitMemory(int mebibytes);
