#include "refhost/runner/ExamplesCommand.h"

#include "refhost/engine/ExampleBook.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/StepNames.h"
#include "refhost/runner/supervision/RunProgress.h"

#include "Operation.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

QCommandLineOption checkOption()
{
    return {QStringLiteral("check"),
            QStringLiteral("Run the examples and report every difference, with status 1.")};
}

void printExample(const WorkedExample &example, const OperationSchema &schema, Console &console)
{
    console.print(QStringLiteral("  ") + example.name);
    for (const JsonMember &variable : example.variables)
        console.print(QStringLiteral("      $%1: %2").arg(variable.key, jsonText(variable.value)));
    const QStringList names = settingNames(example, schema);
    for (const QString &name : names) {
        const QString value = jsonText(example.settings.value(name));
        console.print(QStringLiteral("      %1: %2").arg(name, value));
    }
    const QString result = example.result.isUndefined() ? RunnerText::tr("nothing is written")
                                                        : jsonText(example.result);
    console.print(QStringLiteral("      -> %1 (%2)").arg(result, example.into));
    for (const QString &line : example.warnings)
        console.print(QStringLiteral("      ") + RunnerText::tr("warning: %1").arg(line));
}

void printPage(const CatalogEntry &entry, const OperationPage &page, Console &console)
{
    console.print(entry.typeId + QStringLiteral("  ") + entry.prototype->typeName());
    const OperationSchema schema(*entry.prototype);
    for (const WorkedExample &example : page.examples)
        printExample(example, schema, console);
}

QString shown(const ExampleOutcome &outcome)
{
    QStringList parts;
    parts.append(outcome.result.isUndefined() ? RunnerText::tr("nothing written")
                                              : jsonText(outcome.result));
    for (const QString &line : outcome.warnings)
        parts.append(RunnerText::tr("warning %1").arg(line));
    if (outcome.failure)
        parts.append(RunnerText::tr("threw %1").arg(*outcome.failure));
    for (const QString &name : outcome.others)
        parts.append(RunnerText::tr("written to %1").arg(name));
    return parts.join(QLatin1String(", "));
}

/// How many examples of the page differ; each is reported.
int differences(const CatalogEntry &entry, const OperationPage &page,
                const OperationCatalog &catalog, const Console &console)
{
    int count = 0;
    const QString plugin = QFileInfo(catalog.pluginFile(entry.typeId)).fileName();
    const QStringList step{stepName(entry.typeId, plugin)};
    for (const WorkedExample &example : page.examples) {
        const ExampleOutcome expected{example.result, example.warnings, {}, {}};
        RunProgress::current().setSteps(RunnerText::tr("example \"%1\"").arg(example.name), step);
        const Result<ExampleOutcome> actual = runExample(example, entry.typeId, catalog);
        if (actual && shown(actual.value()) == shown(expected))
            continue;
        ++count;
        const QString found = actual ? shown(actual.value()) : actual.problem().toString();
        console.complain(RunnerText::tr("%1, example \"%2\": %3; expected %4")
                             .arg(entry.typeId, example.name, found, shown(expected)));
    }
    return count;
}

} // namespace

QString ExamplesCommand::name() const
{
    return QStringLiteral("examples");
}

QString ExamplesCommand::summary() const
{
    return QStringLiteral("Prints the worked examples that come with the plug-ins.");
}

QString ExamplesCommand::example() const
{
    return QStringLiteral("oprun examples text.find");
}

QStringList ExamplesCommand::arguments() const
{
    return {QStringLiteral("[TYPE]")};
}

QList<QCommandLineOption> ExamplesCommand::options() const
{
    return {checkOption()};
}

int ExamplesCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                             const QStringList &arguments, Console &console) const
{
    const Result<ExampleBook> book = ExampleBook::read(catalog);
    if (!book) {
        console.complain(book.problem().toString());
        return BadInput;
    }
    if (!arguments.isEmpty() && !findOrComplain(catalog, arguments.first(), console))
        return BadInput;
    int run = 0;
    int differing = 0;
    for (const CatalogEntry &entry : catalog.entries()) {
        if (!arguments.isEmpty() && entry.typeId != arguments.first())
            continue;
        const OperationPage page = book.value().page(entry.typeId);
        run += page.examples.size();
        if (options.isSet(checkOption()))
            differing += differences(entry, page, catalog, console);
        else
            printPage(entry, page, console);
    }
    if (options.isSet(checkOption()))
        console.print(RunnerText::tr("%1 examples, %2 differ")
                          .arg(QString::number(run), QString::number(differing)));
    return differing == 0 ? Success : Differs;
}
