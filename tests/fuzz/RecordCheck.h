#pragma once

#include "tests/fuzz/ByteSource.h"

#include <QString>

/// Loads any bytes as a record, in any form a stream can have, and saves what came of it: a record
/// that could be read is written as it was, and what was loaded from any bytes can be saved, loaded
/// and shown. Returns what goes wrong, an empty text if nothing.
QString checkRecord(ByteSource source);
