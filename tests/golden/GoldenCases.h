#pragma once

#include "tests/golden/GoldenRecord.h"

#include <QList>

class Operation;

/// The records that are kept of an operation: as it comes, with every property changed, with texts
/// that are empty, null, odd or long, and with numbers at the ends of their range.
QList<GoldenRecord> goldenCases(const Operation &prototype);
