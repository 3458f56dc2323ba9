#pragma once

#include <QString>

/// `text` on one line of a terminal: control characters as "\n", "\t" or "\u0007".
QString oneLine(const QString &text);
