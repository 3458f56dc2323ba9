#pragma once

#include "tests/fuzz/ByteSource.h"

#include <QString>

/// Makes a step of any operation, with any settings, and a scope; runs it and its literal
/// definition and compares what they have written and logged. Returns what differs, an empty text
/// if nothing.
QString checkStep(ByteSource source);
