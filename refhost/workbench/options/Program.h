#pragma once

/// Runs the workbench on the command line: parses it, and shows the window, draws it or answers a
/// question. The exit status.
int runWorkbench(int argc, char *argv[]);
