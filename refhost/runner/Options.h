#pragma once

#include <QCommandLineOption>
#include <QList>

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

/// The options of every command: --help, --version, --plugin, --lang.
QList<QCommandLineOption> common();

/// Returns whether the option may be given several times, each with a value of its own. Of no other
/// option with a value may there be two: one of them would be ignored.
bool isRepeatable(const QCommandLineOption &option);

} // namespace Options
