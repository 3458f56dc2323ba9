#include "refhost/runner/Oprun.h"

#include "refhost/runner/CatalogCommand.h"
#include "refhost/runner/CheckCommand.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/DescribeCommand.h"
#include "refhost/runner/DocsCommand.h"
#include "refhost/runner/ExamplesCommand.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/ExplainCommand.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/PackCommand.h"
#include "refhost/runner/RunCommand.h"
#include "refhost/runner/UnpackCommand.h"
#include "refhost/runner/ValidateCommand.h"
#include "refhost/runner/Versions.h"

#include <QCommandLineParser>

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <vector>

namespace {

using Commands = std::vector<std::unique_ptr<Command>>;

Commands allCommands()
{
    Commands commands;
    commands.push_back(std::make_unique<CatalogCommand>());
    commands.push_back(std::make_unique<DescribeCommand>());
    commands.push_back(std::make_unique<RunCommand>());
    commands.push_back(std::make_unique<ExplainCommand>());
    commands.push_back(std::make_unique<CheckCommand>());
    commands.push_back(std::make_unique<PackCommand>());
    commands.push_back(std::make_unique<UnpackCommand>());
    commands.push_back(std::make_unique<ExamplesCommand>());
    commands.push_back(std::make_unique<DocsCommand>());
    commands.push_back(std::make_unique<ValidateCommand>());
    return commands;
}

QStringList commandNames(const Commands &commands)
{
    QStringList names;
    for (const auto &command : commands)
        names.append(command->name());
    return names;
}

QString overview(const Commands &commands)
{
    QString text = QStringLiteral("Runs tasks of a desktop automation host on its plug-ins.\n\n"
                                  "Commands:\n");
    for (const auto &command : commands)
        text += QStringLiteral("  %1 %2\n").arg(command->name(), -9).arg(command->summary());
    return text + QStringLiteral("\n\"oprun COMMAND --help\" tells about one of them.");
}

/// Whether the command takes that many arguments.
bool takes(const Command &command, int count)
{
    const QStringList all = command.arguments();
    const bool repeats = !all.isEmpty() && all.last().endsWith(QLatin1String("..."));
    const auto isOptional = [](const QString &name) { return name.startsWith(QLatin1Char('[')); };
    const auto optional = std::count_if(all.begin(), all.end(), isOptional);
    return (repeats || count <= all.size()) && count >= all.size() - optional;
}

QString listOr(const QStringList &words, const QString &none)
{
    return words.isEmpty() ? none : words.join(QLatin1Char(' '));
}

/// Answers --help and --version; the exit status if there was such a question.
std::optional<int> answerQuestion(const QCommandLineParser &parser)
{
    Console console;
    int status = Success;
    if (parser.isSet(Options::help())) {
        console.print(parser.helpText().trimmed());
    } else if (parser.isSet(Options::version())) {
        status = printVersions(parser, console);
    } else {
        return std::nullopt;
    }
    return console.flush() ? status : BadInput;
}

int usageError(const Console &console, const QString &message)
{
    console.complain(message + QStringLiteral(" Try \"oprun --help\"."));
    return BadInput;
}

int runCommand(const Command &command, QCommandLineParser &parser, const QStringList &arguments)
{
    Console console;
    parser.clearPositionalArguments();
    parser.setApplicationDescription(
        QStringLiteral("%1\n\nExample:\n  %2").arg(command.summary(), command.example()));
    parser.addPositionalArgument(command.name(), command.summary());
    for (const QString &argument : command.arguments())
        parser.addPositionalArgument(argument, QString());
    command.addOptions(parser);
    if (!parser.parse(arguments))
        return usageError(console, parser.errorText());
    if (const auto status = answerQuestion(parser))
        return *status;
    const QStringList given = parser.positionalArguments().mid(1);
    if (!takes(command, given.size())) {
        return usageError(console,
                          QStringLiteral("%1: %2; expected %3.")
                              .arg(command.name(), listOr(given, QStringLiteral("no argument")),
                                   listOr(command.arguments(), QStringLiteral("none"))));
    }
    int status = BadInput;
    try {
        status = command.run(parser, given, console);
    } catch (const std::bad_alloc &) {
        // Steps go on without what does not fit; showing what does can still be too much.
        console.complain(QStringLiteral("what this takes does not fit into memory"));
    }
    return console.flush() ? status : BadInput;
}

} // namespace

int runOprun(const QStringList &arguments)
{
    const Console console;
    const Commands commands = allCommands();
    QCommandLineParser parser;
    parser.setApplicationDescription(overview(commands));
    parser.addOptions(
        {Options::help(), Options::version(), Options::plugin(), Options::language()});
    parser.addPositionalArgument(QStringLiteral("COMMAND"),
                                 commandNames(commands).join(QLatin1String(", ")));

    // The options of the command are not known yet; an unknown one counts only without a command.
    const bool understood = parser.parse(arguments);
    const QString name = parser.positionalArguments().value(0);
    for (const auto &command : commands) {
        if (command->name() == name)
            return runCommand(*command, parser, arguments);
    }
    if (!understood)
        return usageError(console,
                          parser.errorText() + QStringLiteral(" Options of a command follow it."));
    if (const auto status = answerQuestion(parser))
        return *status;
    return usageError(console,
                      QStringLiteral("%1; expected %2.")
                          .arg(name.isEmpty() ? QStringLiteral("no command")
                                              : QStringLiteral("no command \"%1\"").arg(name),
                               commandNames(commands).join(QLatin1String(", "))));
}
