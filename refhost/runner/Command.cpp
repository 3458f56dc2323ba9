#include "refhost/runner/Command.h"

void Command::addOptions(QCommandLineParser &parser) const
{
    Q_UNUSED(parser)
}
