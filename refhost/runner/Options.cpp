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

QCommandLineOption Options::language()
{
    return {
        QStringLiteral("lang"),
        QStringLiteral("Show messages and texts of plug-ins in this language, not in that of the "
                       "locale; \"zh\" for texts as in the sources of plug-ins."),
        QStringLiteral("LANG")};
}

QCommandLineOption Options::plugin()
{
    return {QStringLiteral("plugin"),
            QStringLiteral("Load this plug-in instead of those beside the program; repeatable."),
            QStringLiteral("FILE")};
}

QList<QCommandLineOption> Options::common()
{
    return {help(), version(), plugin(), language()};
}

bool Options::isRepeatable(const QCommandLineOption &option)
{
    const QStringList repeatable{QStringLiteral("plugin"), QStringLiteral("set"),
                                 QStringLiteral("print"), QStringLiteral("only")};
    return repeatable.contains(option.names().constFirst());
}
