#include "refhost/workbench/options/Program.h"

#include <QGuiApplication>
#include <QTextCodec>

int main(int argc, char *argv[])
{
    // Arguments and file names are UTF-8 whatever the locale says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QGuiApplication::setApplicationName(QStringLiteral("opworkbench"));
    QGuiApplication::setApplicationVersion(QStringLiteral(OPWORKBENCH_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("opworkbench"));
    return runWorkbench(argc, argv);
}
