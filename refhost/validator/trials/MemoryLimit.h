#pragma once

#include <QString>

#include <optional>

/// Lets this process take no more than `mebibytes` on top of the address space it has taken. Why
/// that cannot be done here, otherwise nothing.
std::optional<QString> limitMemory(int mebibytes);
