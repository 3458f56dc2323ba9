#include "refhost/runner/Oprun.h"

#include <QCoreApplication>
#include <QTextCodec>

int main(int argc, char *argv[])
{
    // Arguments and file names are UTF-8 whatever the locale says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("oprun"));
    QCoreApplication::setApplicationVersion(QStringLiteral(OPRUN_VERSION));
    return runOprun(QCoreApplication::arguments());
}
