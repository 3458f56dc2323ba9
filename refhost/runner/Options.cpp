#include "refhost/runner/Options.h"

QCommandLineOption Options::help()
{
    return {{QStringLiteral("h"), QStringLiteral("help")},
            QStringLiteral("Print this text; after a command, that of the command.")};
}

QCommandLineOption Options::version()
{
    return {{QStringLiteral("v"), QStringLiteral("version")},
            QStringLiteral("Print the versions of the program and of the plug-ins.")};
}

QCommandLineOption Options::json()
{
    return {QStringLiteral("json"), QStringLiteral("Print the result as JSON.")};
}

QCommandLineOption Options::plugin()
{
    return {QStringLiteral("plugin"),
            QStringLiteral("Load this plug-in instead of those beside the program; repeatable."),
            QStringLiteral("FILE")};
}
