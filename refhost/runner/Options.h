#pragma once

#include <QCommandLineOption>

/// The options that several commands know.
namespace Options {

/// --help: print the help text and stop.
QCommandLineOption help();

/// --version: print the versions of the program and of the plug-ins and stop.
QCommandLineOption version();

/// --json: results as JSON.
QCommandLineOption json();

/// --lang LANG: show texts of plug-ins in this language.
QCommandLineOption language();

/// --plugin FILE: load this plug-in instead of those found beside the program; repeatable.
QCommandLineOption plugin();

} // namespace Options
