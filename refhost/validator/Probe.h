#pragma once

/// The probe: runs one check on one plug-in and writes its outcome as JSON, or lists the checks.
/// Returns the exit status for those command lines that run no check; a check ends the process.
int runProbe(int argc, char *argv[]);
