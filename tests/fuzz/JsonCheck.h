#pragma once

#include "tests/fuzz/ByteSource.h"

#include <QString>

/// Parses any bytes as JSON. A value that could be read is written compactly and indented, and both
/// texts read back as the same value; a problem has a place. Returns what goes wrong, an empty text
/// if nothing.
QString checkJson(ByteSource source);
