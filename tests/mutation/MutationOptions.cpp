#include "tests/mutation/MutationOptions.h"

#include <QCommandLineParser>

namespace {

/// The value of an option as a number from 1 on; 0 when it is none.
int countOf(const QCommandLineParser &parser, const QString &option, QString *problem)
{
    const QString value = parser.value(option);
    const int number = value.toInt();
    if (number < 1)
        *problem = QStringLiteral("--%1 takes a number from 1 on, not \"%2\"").arg(option, value);
    return number;
}

} // namespace

MutationOptions MutationOptions::read(const QStringList &arguments, QString *problem)
{
    const QString file = QStringLiteral("file");
    const QString list = QStringLiteral("list");
    const QString jobs = QStringLiteral("jobs");
    const QString every = QStringLiteral("every");
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Changes one thing of the library at a time and tells which changes no test notices."));
    const QCommandLineOption help = parser.addHelpOption();
    parser.addOptions(
        {{file, QStringLiteral("Change only sources such as \"common/Operand*\"; repeatable."),
          QStringLiteral("PATTERN")},
         {list, QStringLiteral("List the changes and try none.")},
         {jobs, QStringLiteral("Try so many at a time, 2 unless given."), QStringLiteral("N"),
          QStringLiteral("2")},
         {every, QStringLiteral("Take only each N-th change."), QStringLiteral("N"),
          QStringLiteral("1")}});
    MutationOptions options;
    if (!parser.parse(arguments))
        *problem = parser.errorText();
    else if (parser.isSet(help))
        parser.showHelp();
    else if (!parser.positionalArguments().isEmpty())
        *problem = QStringLiteral("unexpected argument \"%1\"; sources are chosen with --file")
                       .arg(parser.positionalArguments().first());
    if (!problem->isEmpty())
        return options;
    options.filePatterns = parser.values(file);
    options.listOnly = parser.isSet(list);
    options.jobs = countOf(parser, jobs, problem);
    options.every = countOf(parser, every, problem);
    return options;
}
