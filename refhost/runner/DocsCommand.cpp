#include "refhost/runner/DocsCommand.h"

#include "refhost/engine/ExampleBook.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/PropertyRemarks.h"

#include "Operation.h"

#include <QCommandLineParser>

#include <algorithm>
#include <iterator>

namespace {

QCommandLineOption iconsOption()
{
    return {QStringLiteral("icons"),
            QStringLiteral("Where the page finds the icons; stands for the \":/\" of their paths."),
            QStringLiteral("PREFIX"), QStringLiteral(":/")};
}

/// Text for a cell of a table.
QString cell(QString text)
{
    return text.replace(QLatin1Char('|'), QLatin1String("\\|"));
}

/// Code for a cell of a table, empty for an empty text.
QString code(const QString &text)
{
    return text.isEmpty() ? QString() : cell(QLatin1Char('`') + text + QLatin1Char('`'));
}

void printRow(const QStringList &cells, Console &console)
{
    console.print(QStringLiteral("| ") + cells.join(QLatin1String(" | ")) + QStringLiteral(" |"));
}

void printTableHead(const QStringList &titles, Console &console)
{
    console.print(QString());
    printRow(titles, console);
    QStringList rule;
    std::fill_n(std::back_inserter(rule), titles.size(), QStringLiteral("---"));
    printRow(rule, console);
}

void printProperties(const OperationSchema &schema, Console &console)
{
    printTableHead({QStringLiteral("property"), QStringLiteral("label"), QStringLiteral("editor"),
                    QStringLiteral("default"), QStringLiteral("remarks")},
                   console);
    for (const PropertySchema &property : schema.properties()) {
        printRow({code(property.name), cell(property.shownLabel), code(editorOf(property)),
                  code(jsonText(variantToJson(property.defaultValue))), cell(remarksOn(property))},
                 console);
    }
}

/// What an example starts from: its variables, then its settings, each on a line of its own.
QString givenLines(const WorkedExample &example, const OperationSchema &schema)
{
    QStringList lines;
    for (const JsonMember &variable : example.variables)
        lines.append(code(QStringLiteral("$%1: %2").arg(variable.key, jsonText(variable.value))));
    const QStringList names = settingNames(example, schema);
    for (const QString &name : names) {
        const QString value = jsonText(example.settings.value(name));
        lines.append(code(QStringLiteral("%1: %2").arg(name, value)));
    }
    return lines.join(QLatin1String("<br>"));
}

void printExamples(const QList<WorkedExample> &examples, const OperationSchema &schema,
                   Console &console)
{
    printTableHead({QStringLiteral("example"), QStringLiteral("variables and settings"),
                    QStringLiteral("result"), QStringLiteral("type"), QStringLiteral("warning")},
                   console);
    for (const WorkedExample &example : examples) {
        QStringList warnings;
        for (const QString &line : example.warnings)
            warnings.append(code(line));
        printRow({cell(example.name), givenLines(example, schema),
                  example.result.isUndefined() ? QStringLiteral("nothing is written")
                                               : code(jsonText(example.result)),
                  example.into, warnings.join(QLatin1String("<br>"))},
                 console);
    }
}

void printOperation(const CatalogEntry &entry, const OperationPage &page, const QString &icons,
                    Console &console)
{
    QString icon = entry.prototype->icon();
    if (icon.startsWith(QLatin1String(":/")))
        icon.replace(0, 2, icons);
    console.print(QStringLiteral("\n## %1 `%2`\n").arg(entry.prototype->typeName(), entry.typeId));
    console.print(QStringLiteral("<img src=\"%1\" width=\"48\" alt=\"\">\n").arg(icon));
    if (!page.about.isEmpty())
        console.print(page.about);
    const OperationSchema schema(*entry.prototype);
    printProperties(schema, console);
    if (!page.examples.isEmpty())
        printExamples(page.examples, schema, console);
}

} // namespace

QString DocsCommand::name() const
{
    return QStringLiteral("docs");
}

QString DocsCommand::summary() const
{
    return QStringLiteral("Prints the reference page of the operations in Markdown.");
}

QString DocsCommand::example() const
{
    return QStringLiteral("oprun docs > operations.md");
}

QList<QCommandLineOption> DocsCommand::options() const
{
    return {iconsOption()};
}

bool DocsCommand::isForPrograms(const QCommandLineParser &options) const
{
    Q_UNUSED(options)
    return true; // the page is kept and compared
}

int DocsCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                         const QStringList &arguments, Console &console) const
{
    Q_UNUSED(arguments)
    const Result<ExampleBook> book = ExampleBook::read(catalog);
    if (!book) {
        console.complain(book.problem().toString());
        return BadInput;
    }
    console.print(QStringLiteral("# Operations\n\n"
                                 "In the order of the catalogue. This page is written by "
                                 "`oprun docs`; what is to change in it changes in the operations "
                                 "and in their worked examples."));
    for (const CatalogEntry &entry : catalog.entries()) {
        printOperation(entry, book.value().page(entry.typeId), options.value(iconsOption()),
                       console);
    }
    return Success;
}
