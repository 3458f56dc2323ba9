#pragma once

#include <QRegularExpression>
#include <QString>

/// A trace without the lines that tell how long each step took, which differ from run to run.
inline QString withoutTimes(QString trace)
{
    return trace.remove(QRegularExpression(" *took \\d+\\.\\d µs\n"));
}
