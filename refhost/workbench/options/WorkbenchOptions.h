#pragma once

#include "refhost/engine/Result.h"

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

/// What the command line of the workbench asks for.
class WorkbenchOptions
{
    Q_DECLARE_TR_FUNCTIONS(WorkbenchOptions)

public:
    QStringList plugins;   ///< those to load instead of those beside the program, empty for these
    QString style;         ///< one of `appearanceNames`
    QString language;      ///< one of `languageNames`
    QString screenshot;    ///< the picture to write instead of showing the window, may be empty
    QSize size{1280, 800}; ///< of the picture, in logical pixels
    QString task;          ///< the task to open, may be empty
    int step = 0;          ///< the step to select, counted from 1; 0 for none
    int pauseAt = 0;       ///< the step to run up to, counted from 1; 0 for none
    bool run = false;      ///< run the task
    bool helpWanted = false;
    bool versionWanted = false;

    /// Reads the command line, the name of the program included. A problem says what is wrong.
    static Result<WorkbenchOptions> parse(const QStringList &arguments);

    /// The language a command line asks for, else the one that is remembered: the messages about
    /// all the rest of it are in that language, too.
    static QString languageIn(const QStringList &arguments);

    /// The text of --help, and the line of --version.
    static QString helpText();
    static QString versionText();

private:
    static void addOptions(QCommandLineParser &parser);
    static QString unknownOption(const QString &given);
    static std::optional<Problem> findRepeatedOption(const QCommandLineParser &parser);
    std::optional<Problem> readSize(const QCommandLineParser &parser);
    std::optional<Problem> readSteps(const QCommandLineParser &parser);
    std::optional<Problem> readNames(const QCommandLineParser &parser);
    std::optional<Problem> read(const QCommandLineParser &parser);
};
