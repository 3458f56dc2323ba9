#pragma once

#include "refhost/runner/Probe.h"

class Interruption;
struct ValidateOptions;

/// Runs the checks that `options` ask for on the plug-in `file`, one after the other. Those that
/// others stand on are run in any case, and reported when they do not pass; where one of them does
/// not pass the others are skipped. Ends early, with part of the reports, once oprun is asked to
/// end.
QList<CheckReport> validatePlugin(const QString &file, const Probe &probe,
                                  const ValidateOptions &options, const Interruption &interruption);
