#pragma once

#include <QString>

/// A duration as people read it: "9.4 µs", "12 ms", "3.5 s". Negative ones count as nothing.
QString durationText(qint64 nanoseconds);
