#include "refhost/workbench/files/FileActions.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>

// LostWindow PLUGIN TASK TEXT WAY: opens a task, writes a text into its first step, and ends as no
// window should, by WAY:
//
//   idle     a second later
//   run      at once, as the first step of a run might do it
//   stay     not by itself; tells on standard output when the task is in its recovery file

namespace {

constexpr int second = 1000;

void edit(TaskDocument &document, const QString &text)
{
    const int step = document.state().steps.first().id;
    document.type("typing", document.state().withProperty(step, "sourceText", text),
                  {step, "sourceText", 0});
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 5)
        return EXIT_FAILURE;
    Workbench bench({arguments.at(1)});
    QWidget window;
    FileActions files(bench, &window);
    if (files.load(arguments.at(2)))
        return EXIT_FAILURE;
    edit(bench.document, arguments.at(3));
    const QString way = arguments.at(4);
    if (way == "run") {
        Q_EMIT bench.run.stateChanged();
        std::abort();
    }
    QTimer::singleShot(second, [&way] {
        if (way == "idle")
            std::abort();
        std::puts("ready");
        std::fflush(stdout);
    });
    return QApplication::exec();
}
