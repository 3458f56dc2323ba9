#pragma once

#include <QString>

/// A variable name as it is shown to a user: with a leading "$" unless it is empty or has one.
QString displayVariableName(const QString &name);

/// Fills the lowest place marker of `pattern` as `QString::arg` does; where the result does not fit
/// into memory, and no one would read it, the pattern stays as it is.
QString fillMarker(const QString &pattern, const QString &value);
QString fillMarker(const QString &pattern, int value);

/// Fills the place markers of `pattern` one value after the other. Not all in one go: a marker
/// inside an earlier value is to be filled by a later one, as users of the host know it from every
/// other summary.
template <typename... Values>
QString fillMarkers(QString pattern, const Values &...values)
{
    ((pattern = fillMarker(pattern, values)), ...);
    return pattern;
}
