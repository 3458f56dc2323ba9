#pragma once

#include <QString>

/// `text` on one line of a terminal: control characters as "\n", "\t" or "\u0007".
QString oneLine(const QString &text);

/// "steps[3]  ": how a line about the step at `index` begins.
QString stepNumber(int index);
