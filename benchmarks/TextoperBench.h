#pragma once

#include <QStringList>

/// Runs the program on its command line, of which the first argument is its name, and returns the
/// exit status.
int runTextoperBench(const QStringList &arguments);
