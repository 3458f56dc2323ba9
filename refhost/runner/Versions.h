#pragma once

class Console;
class QCommandLineParser;

/// Prints the versions of the program, of Qt and of the plug-ins. Returns the exit status.
int printVersions(const QCommandLineParser &options, Console &console);
