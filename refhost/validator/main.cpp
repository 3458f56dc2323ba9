#include "refhost/validator/Probe.h"

#include <QTextCodec>

int main(int argc, char *argv[])
{
    // Arguments and file names are UTF-8 whatever the locale says.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    return runProbe(argc, argv);
}
