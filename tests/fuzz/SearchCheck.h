#pragma once

#include "tests/fuzz/ByteSource.h"

#include <QString>

/// Searches a text for another and compares with Qt: the first occurrence from some start, all
/// occurrences one after the other, and each of the algorithms behind them alone. Converts its
/// letter case, too. Returns what differs, an empty text if nothing.
QString checkSearch(ByteSource source);
