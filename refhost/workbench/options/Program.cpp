#include "refhost/workbench/options/Program.h"

#include "refhost/engine/OutputFile.h"
#include "refhost/engine/PluginFolder.h"
#include "refhost/engine/ProgramArguments.h"
#include "refhost/workbench/files/FileActions.h"
#include "refhost/workbench/look/Appearance.h"
#include "refhost/workbench/look/Language.h"
#include "refhost/workbench/options/Screenshot.h"
#include "refhost/workbench/options/WorkbenchOptions.h"
#include "refhost/workbench/options/WorkbenchStatus.h"
#include "refhost/workbench/window/MainWindow.h"
#include "refhost/workbench/window/Workbench.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <cstdio>

namespace {

int statusOf(WorkbenchStatus status)
{
    return static_cast<int>(status);
}

/// One line, in UTF-8 whatever the locale.
void complain(const QString &message)
{
    const QByteArray line =
        QByteArrayLiteral("opworkbench: ") + message.simplified().toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

int print(const QString &text)
{
    OutputFile out(QStringLiteral("-"));
    const auto problem = out.write(text.trimmed().toUtf8() + '\n');
    if (!problem)
        return statusOf(WorkbenchStatus::Success);
    complain(problem->toString());
    return statusOf(WorkbenchStatus::CannotDo);
}

/// Reads the command line, with an application of its own: help and complaints need no screen. An
/// exit status when there is nothing more to do.
std::optional<int> readCommandLine(int argc, char *argv[], WorkbenchOptions &options)
{
    const QCoreApplication application(argc, argv);
    const Result<QStringList> arguments = programArguments(argc, argv);
    installLanguage(WorkbenchOptions::languageIn(QCoreApplication::arguments()));
    if (!arguments) {
        complain(arguments.problem().toString());
        return statusOf(WorkbenchStatus::BadUsage);
    }
    const Result<WorkbenchOptions> parsed = WorkbenchOptions::parse(arguments.value());
    if (!parsed) {
        complain(QCoreApplication::translate("Program", "%1用法见 opworkbench --help。")
                     .arg(parsed.problem().toString()));
        return statusOf(WorkbenchStatus::BadUsage);
    }
    options = parsed.value();
    if (options.helpWanted)
        return print(WorkbenchOptions::helpText());
    if (options.versionWanted)
        return print(WorkbenchOptions::versionText());
    return std::nullopt;
}

/// The identifier of the step with that number, 0 with a complaint when there is none.
int stepNumbered(const Workbench &bench, int number)
{
    const QVector<StepState> &steps = bench.document.state().steps;
    if (number <= steps.size())
        return steps.at(number - 1).id;
    complain(QCoreApplication::translate("Program", "没有第 %1 步；任务有 %2 步。")
                 .arg(number)
                 .arg(steps.size()));
    return 0;
}

/// Selects and runs what the command line names. Whether it is there.
bool goToPlace(Workbench &bench, const WorkbenchOptions &options)
{
    if (options.run)
        bench.run.run();
    if (options.pauseAt > 0) {
        const int step = stepNumbered(bench, options.pauseAt);
        if (step == 0)
            return false;
        bench.run.runTo(step);
    }
    if (options.step == 0)
        return true;
    const int step = stepNumbered(bench, options.step);
    bench.place.setStep(step);
    return step != 0;
}

void waitForRun(const RunSession &run)
{
    QEventLoop loop;
    QObject::connect(&run, &RunSession::stateChanged, &loop, [&] {
        if (run.state() != RunSession::State::Running)
            loop.quit();
    });
    if (run.state() == RunSession::State::Running)
        loop.exec();
}

int drawWindow(Workbench &bench, MainWindow &window, const WorkbenchOptions &options)
{
    if (!options.task.isEmpty()) {
        if (const auto problem = window.files().load(options.task)) {
            complain(problem->toString());
            return statusOf(WorkbenchStatus::CannotDo);
        }
    }
    if (options.step == 0 && !bench.document.state().steps.isEmpty())
        bench.place.setStep(bench.document.state().steps.constFirst().id);
    if (!goToPlace(bench, options))
        return statusOf(WorkbenchStatus::CannotDo);
    waitForRun(bench.run);
    bench.check.update();
    if (const auto problem = writeScreenshot(window, options.size, options.screenshot)) {
        complain(problem->toString());
        return statusOf(WorkbenchStatus::CannotDo);
    }
    return statusOf(WorkbenchStatus::Success);
}

int showWindow(Workbench &bench, MainWindow &window, const WorkbenchOptions &options)
{
    window.rememberLayout();
    window.show();
    // Questions come over a window that is there.
    QTimer::singleShot(0, &window, [&] {
        if (!options.task.isEmpty() && window.files().open(options.task))
            goToPlace(bench, options);
        window.files().offerLost();
    });
    return QApplication::exec();
}

} // namespace

int runWorkbench(int argc, char *argv[])
{
    WorkbenchOptions options;
    if (const auto status = readCommandLine(argc, argv, options))
        return *status;
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // The options are read; Qt's own of the same names mean something else.
    int ownCount = 1;
    QApplication application(ownCount, argv);
    installLanguage(options.language);
    applyAppearance(options.style);
    Workbench bench(options.plugins.isEmpty()
                        ? pluginFiles(pluginFolders(QCoreApplication::applicationDirPath()))
                        : options.plugins,
                    options.language);
    MainWindow window(bench);
    return options.screenshot.isEmpty() ? showWindow(bench, window, options)
                                        : drawWindow(bench, window, options);
}
