#pragma once

#include <QString>

#include <optional>

/// Why the memory of this process cannot be limited, otherwise nothing.
std::optional<QString> memoryLimitObstacle();

/// Lets this process take no more than `mebibytes` on top of the address space it has taken, where
/// that can be done.
void limitMemory(int mebibytes);
