#include "refhost/workbench/options/Program.h"

#include <QCoreApplication>
#include <QTextCodec>

int main(int argc, char *argv[])
{
    // Arguments and file names are UTF-8 whatever the locale says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication::setApplicationName(QStringLiteral("opworkbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OPWORKBENCH_VERSION));
    return runWorkbench(argc, argv);
}
