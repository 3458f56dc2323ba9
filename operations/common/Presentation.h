#pragma once

#include <QString>

/// A variable name as it is shown to a user: with a leading "$" unless it is empty or has one.
QString displayVariableName(const QString &name);

/// Fills the place markers of `pattern` one `QString::arg` call after the other. Not one call with
/// many arguments: a marker inside an earlier value is to be filled by a later one, as users of the
/// host know it from every other summary.
template <typename... Values>
QString fillMarkers(QString pattern, const Values &...values)
{
    ((pattern = pattern.arg(values)), ...);
    return pattern;
}
