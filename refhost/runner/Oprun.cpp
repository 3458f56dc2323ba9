#include "refhost/runner/Oprun.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/runner/CatalogCommand.h"
#include "refhost/runner/CheckCommand.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/DescribeCommand.h"
#include "refhost/runner/DocsCommand.h"
#include "refhost/runner/ExamplesCommand.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/ExplainCommand.h"
#include "refhost/runner/LanguageChoice.h"
#include "refhost/runner/OptionMisuse.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/PackCommand.h"
#include "refhost/runner/RunCommand.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/UnpackCommand.h"
#include "refhost/runner/ValidateCommand.h"
#include "refhost/runner/Versions.h"
#include "refhost/runner/supervision/Supervisor.h"

#include <QCommandLineParser>

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <vector>

namespace {

using Commands = std::vector<std::unique_ptr<Command>>;

/// "oprun help [COMMAND]": the same as "oprun --help" and "oprun COMMAND --help".
class HelpCommand : public Command
{
public:
    QString name() const override { return QStringLiteral("help"); }
    QString summary() const override
    {
        return QStringLiteral("Prints what --help prints, for the program or for a command.");
    }
    QString example() const override { return QStringLiteral("oprun help run"); }
    QStringList arguments() const override { return {QStringLiteral("[COMMAND]")}; }
    int run(const QCommandLineParser &options, const QStringList &arguments,
            Console &console) const override;
};

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
    commands.push_back(std::make_unique<HelpCommand>());
    return commands;
}

QStringList commandNames(const Commands &commands)
{
    QStringList names;
    for (const auto &command : commands)
        names.append(command->name());
    return names;
}

/// Returns the command called `name`, null when there is none.
const Command *findCommand(const Commands &commands, const QString &name)
{
    const auto found = std::find_if(commands.cbegin(), commands.cend(),
                                    [&](const auto &command) { return command->name() == name; });
    return found == commands.cend() ? nullptr : found->get();
}

/// Returns the first command that one of the words names, null when there is none.
const Command *firstCommand(const Commands &commands, const QStringList &words)
{
    for (const QString &word : words) {
        if (const Command *const command = findCommand(commands, word))
            return command;
    }
    return nullptr;
}

QString overview(const Commands &commands)
{
    QString text = QStringLiteral("Runs tasks of a desktop automation host on its plug-ins.\n\n"
                                  "Commands:\n");
    for (const auto &command : commands)
        text += QStringLiteral("  %1 %2\n").arg(command->name(), -9).arg(command->summary());
    return text + QStringLiteral("\n\"oprun COMMAND --help\" tells about one of them.");
}

/// Prepares the parser for a command line without a command.
void prepare(QCommandLineParser &parser, const Commands &commands)
{
    parser.setApplicationDescription(overview(commands));
    parser.addOptions(Options::common());
    parser.addPositionalArgument(QStringLiteral("COMMAND"),
                                 commandNames(commands).join(QLatin1String(", ")));
}

QList<QCommandLineOption> optionsOf(const Command &command)
{
    return Options::common() + command.options();
}

/// Prepares the parser for a command line with the command.
void prepare(QCommandLineParser &parser, const Command &command)
{
    parser.setApplicationDescription(
        QStringLiteral("%1\n\nExample:\n  %2").arg(command.summary(), command.example()));
    parser.addPositionalArgument(command.name(), command.summary());
    for (const QString &argument : command.arguments())
        parser.addPositionalArgument(argument, QString());
    parser.addOptions(optionsOf(command));
}

/// Returns whether the command takes that many arguments.
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
    if (parser.isSet(Options::help())) {
        console.print(parser.helpText().trimmed());
        return console.flush() ? Success : BadInput;
    }
    if (!parser.isSet(Options::version()))
        return std::nullopt;
    const auto answer = [&]() -> int {
        const int status = printVersions(parser, console);
        return console.flush() ? status : BadInput;
    };
    // The plug-ins are asked for their versions.
    return supervise(answer, 0);
}

/// Prints the message, and the command line that prints the help text of the command, or that of
/// the program when `command` is null. Returns the exit status.
int usageError(const Console &console, const QString &message, const Command *command = nullptr)
{
    const QString help = command ? QStringLiteral("oprun %1 --help").arg(command->name())
                                 : QStringLiteral("oprun --help");
    console.complain(RunnerText::tr("%1. Try \"%2\".").arg(message, help));
    return BadInput;
}

QString place(const Command &command, const QString &message)
{
    return QStringLiteral("%1: %2").arg(command.name(), message);
}

QString unknownCommand(const QString &name, const Commands &commands)
{
    const QStringList names = commandNames(commands);
    const QString found = name.isEmpty() ? RunnerText::tr("no command")
                                         : RunnerText::tr("no command %1").arg(jsonText(name));
    return withSuggestion(
        RunnerText::tr("%1; expected %2").arg(found, names.join(QLatin1String(", "))),
        nearestName(name, names));
}

int HelpCommand::run(const QCommandLineParser &options, const QStringList &arguments,
                     Console &console) const
{
    Q_UNUSED(options)
    const Commands commands = allCommands();
    const Command *const command = findCommand(commands, arguments.value(0));
    if (!arguments.isEmpty() && !command)
        return usageError(console, unknownCommand(arguments.first(), commands));
    QCommandLineParser parser;
    if (command)
        prepare(parser, *command);
    else
        prepare(parser, commands);
    console.print(parser.helpText().trimmed());
    return Success;
}

/// Runs the command and writes its results.
int perform(const Command &command, const QCommandLineParser &parser, const QStringList &arguments)
{
    Console console;
    int status = BadInput;
    try {
        status = command.run(parser, arguments, console);
    } catch (const std::bad_alloc &) {
        // Steps go on without what does not fit; showing what does can still be too much.
        console.complain(RunnerText::tr("what this takes does not fit into memory"));
    }
    return console.flush() ? status : BadInput;
}

int runCommand(const Command &command, const QStringList &arguments)
{
    const Console console;
    QCommandLineParser parser;
    prepare(parser, command);
    parser.parse(arguments);
    const QString misuse = optionMisuse(parser, optionsOf(command), arguments);
    if (!misuse.isEmpty())
        return usageError(console, place(command, misuse), &command);
    if (const auto status = answerQuestion(parser))
        return *status;
    const QStringList given = parser.positionalArguments().mid(1);
    if (!takes(command, given.size())) {
        const QString message = RunnerText::tr("%1; expected %2")
                                    .arg(listOr(given, RunnerText::tr("no argument")),
                                         listOr(command.arguments(), RunnerText::tr("none")));
        return usageError(console, place(command, message), &command);
    }
    const Result<double> timeout = command.timeoutSeconds(parser);
    if (!timeout) {
        console.complain(timeout.problem().toString());
        return BadInput;
    }
    if (!command.runsPlugins())
        return perform(command, parser, given);
    return supervise([&] { return perform(command, parser, given); }, timeout.value());
}

} // namespace

int runOprun(const QStringList &arguments)
{
    const Console console;
    const Commands commands = allCommands();
    QCommandLineParser parser;
    prepare(parser, commands);
    // The options of the command are not known yet; an unknown one counts only without a command.
    parser.parse(arguments);
    installMessages(messageLanguages(parser));
    const QStringList given = parser.positionalArguments();
    if (const Command *const command = findCommand(commands, given.value(0)))
        return runCommand(*command, arguments);
    const bool hasUnknown = !parser.unknownOptionNames().isEmpty();
    const Command *const meant = hasUnknown ? firstCommand(commands, given) : nullptr;
    const QList<QCommandLineOption> known = meant ? optionsOf(*meant) : Options::common();
    const QString misuse = optionMisuse(parser, known, arguments);
    if (hasUnknown) {
        return usageError(console, RunnerText::tr("%1; options of a command follow it").arg(misuse),
                          meant);
    }
    if (!misuse.isEmpty())
        return usageError(console, misuse);
    if (const auto status = answerQuestion(parser))
        return *status;
    return usageError(console, unknownCommand(given.value(0), commands));
}
