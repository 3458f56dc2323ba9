#include "refhost/runner/Command.h"

#include <QtGlobal>

void Command::addOptions(QCommandLineParser &parser) const
{
    Q_UNUSED(parser)
}
