#pragma once

#include <QStringList>

/// The command line host: takes `arguments` (the program's name first), does what they say, and
/// returns the exit status.
int runOprun(const QStringList &arguments);
