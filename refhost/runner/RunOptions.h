#pragma once

#include "refhost/engine/Result.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>

#include <optional>

class QCommandLineParser;
class Task;
struct FileRole;

/// The options of "oprun run".
namespace RunOptions {

/// --set NAME=TEXT: start with this value; repeatable.
QCommandLineOption set();

/// --print NAME: print only this variable; repeatable.
QCommandLineOption print();

/// --trace: tell what each step did.
QCommandLineOption trace();

/// --strict: a warning of a step makes the exit status 1.
QCommandLineOption strict();

/// --each FILE: run on each row of a file.
QCommandLineOption each();

/// --lines NAME: the rows are plain text for this variable.
QCommandLineOption lines();

/// --out FILE: where the lines of the rows go.
QCommandLineOption out();

/// --errors FILE: where that goes which is wrong with rows.
QCommandLineOption errors();

/// --fail-fast: stop at the first row or step that fails.
QCommandLineOption failFast();

/// --extra KEYS: what becomes of the keys of a row that the task does not declare.
QCommandLineOption extra();

/// --on-error ACTION: skip, or keep a line for each row that failed.
QCommandLineOption onError();

/// --skip N: pass over the first rows.
QCommandLineOption skip();

/// --first-line N: the number of the first line of the rows.
QCommandLineOption firstLine();

/// --jobs N: the number of threads.
QCommandLineOption jobs();

/// --timeout SECONDS: end a run when a row of it, or without rows all of it, takes longer.
QCommandLineOption timeout();

/// All of them, with "--json".
QList<QCommandLineOption> all();

/// Returns the file the rows come from, "-" for standard input; only with rows.
QString rowFile(const QCommandLineParser &options);

/// Returns the files that the options name: rows, lines and errors; without rows standard output.
QList<FileRole> files(const QCommandLineParser &options);

/// Returns the seconds of "--timeout", 0 without that option. A problem tells why it is no time.
Result<double> timeoutSeconds(const QCommandLineParser &options);

/// Whether the task is to run on rows.
bool asksForRows(const QCommandLineParser &options);

/// Checks the options that every run has, and gives the task the start values they say.
std::optional<Problem> apply(const QCommandLineParser &options, Task &task);

/// That the task has no variable `name`, which `option` wants, if so.
std::optional<Problem> findMissingVariable(const QString &option, const QString &name,
                                           const Task &task);

} // namespace RunOptions
