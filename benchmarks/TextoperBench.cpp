#include "benchmarks/TextoperBench.h"

#include "benchmarks/FiguresJson.h"
#include "benchmarks/Suite.h"
#include "benchmarks/Table.h"
#include "benchmarks/cases/Cases.h"

#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/PluginFolder.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

enum ExitStatus : int {
    Success = 0,
    WrongResult = 1,    ///< a step gives something else than Qt; nothing more was measured
    BadInput = 2,       ///< the command line or an output cannot be used
    PluginNotLoaded = 3 ///< the plug-in does not load, or none was found
};

QCommandLineOption helpOption()
{
    return {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Print this text.")};
}

QCommandLineOption pluginOption()
{
    return {QStringLiteral("plugin"),
            QStringLiteral("Measure this plug-in instead of the one built with the program."),
            QStringLiteral("FILE")};
}

QCommandLineOption filterOption()
{
    return {QStringLiteral("filter"),
            QStringLiteral("Measure only cases whose \"operation/case\" matches the expression."),
            QStringLiteral("REGEX")};
}

QCommandLineOption jsonOption()
{
    return {QStringLiteral("json"), QStringLiteral("Write the figures to this file, too."),
            QStringLiteral("FILE")};
}

QCommandLineOption quickOption()
{
    return {QStringLiteral("quick"),
            QStringLiteral("Spend little time on each figure: to see that it works.")};
}

void print(const QString &text)
{
    std::fputs(qUtf8Printable(text + QLatin1Char('\n')), stdout);
    std::fflush(stdout);
}

int fail(ExitStatus status, const QString &message)
{
    std::fputs(qUtf8Printable(QStringLiteral("textoper-bench: ") + message + QLatin1Char('\n')),
               stderr);
    return status;
}

/// What is wrong with an understood command line; empty when it can be used.
QString misuse(const QCommandLineParser &options)
{
    const QStringList others = options.positionalArguments();
    if (!others.isEmpty())
        return QStringLiteral("\"%1\": expected options only.").arg(others.first());
    const QRegularExpression filter(options.value(filterOption()));
    if (!filter.isValid())
        return QStringLiteral("--filter: %1.").arg(filter.errorString());
    return {};
}

QVector<BenchmarkCase> chosenCases(const QCommandLineParser &options)
{
    const QRegularExpression filter(options.value(filterOption()));
    QVector<BenchmarkCase> cases = allCases();
    const auto isLeftOut = [&](const BenchmarkCase &measured) {
        const QString name = measured.typeId() + QLatin1Char('/') + measured.name();
        return !filter.match(name).hasMatch();
    };
    cases.erase(std::remove_if(cases.begin(), cases.end(), isLeftOut), cases.end());
    return cases;
}

QStringList chosenPlugins(const QCommandLineParser &options)
{
    if (options.isSet(pluginOption()))
        return options.values(pluginOption());
    return pluginFiles(pluginFolders(QCoreApplication::applicationDirPath()));
}

/// Measures and prints both tables; nothing when a step is wrong.
std::optional<Figures> measured(Suite &suite, const QVector<BenchmarkCase> &cases)
{
    Figures figures;
    print(comparisonHead());
    const auto comparisonSink = [&](const Comparison &comparison) {
        print(comparisonLine(comparison));
        figures.comparisons.append(comparison);
    };
    if (!suite.compare(cases, comparisonSink))
        return std::nullopt;
    print(QLatin1Char('\n') + growthHead());
    const auto growthSink = [&](const Growth &growth) {
        print(growthLine(growth));
        figures.growths.append(growth);
    };
    if (!suite.grow(cases, growthSink))
        return std::nullopt;
    print(QString());
    return figures;
}

int cannotWrite(const QSaveFile &file)
{
    return fail(BadInput, QStringLiteral("%1: %2.").arg(file.fileName(), file.errorString()));
}

int runMeasurements(const OperationCatalog &catalog, const QCommandLineParser &options)
{
    const QVector<BenchmarkCase> cases = chosenCases(options);
    if (cases.isEmpty())
        return fail(BadInput, QStringLiteral("--filter: no case matches."));
    // Opened now: it would be a pity to learn after minutes that it cannot be.
    QSaveFile json(options.value(jsonOption()));
    if (options.isSet(jsonOption()) && !json.open(QIODevice::WriteOnly))
        return cannotWrite(json);
    Suite suite(catalog, options.isSet(quickOption()) ? quickEffort : fullEffort);
    const auto figures = measured(suite, cases);
    if (!figures)
        return fail(WrongResult, suite.problem());
    const QVector<Target> targets = judgedTargets(*figures);
    for (const Target &target : targets)
        print(targetLines(target));
    if (!json.isOpen())
        return Success;
    json.write(QJsonDocument(figuresJson(*figures, targets)).toJson());
    if (!json.commit())
        return cannotWrite(json);
    print(QStringLiteral("The figures are in %1.").arg(json.fileName()));
    return Success;
}

int runWithPlugins(const QCommandLineParser &options)
{
    const QStringList files = chosenPlugins(options);
    if (files.isEmpty())
        return fail(PluginNotLoaded, QStringLiteral("no plug-in found; expected --plugin FILE."));
    const OperationCatalog catalog(files);
    if (!catalog.failures().isEmpty())
        return fail(PluginNotLoaded, catalog.failures().first().toString());
    return runMeasurements(catalog, options);
}

} // namespace

int runTextoperBench(const QStringList &arguments)
{
    QCommandLineParser options;
    options.setApplicationDescription(
        QStringLiteral("Measures the text operations of a plug-in beside Qt's own facilities."));
    options.addOptions({helpOption(), pluginOption(), filterOption(), jsonOption(), quickOption()});
    if (!options.parse(arguments))
        return fail(BadInput, options.errorText());
    if (options.isSet(helpOption())) {
        print(options.helpText().trimmed());
        return Success;
    }
    const QString problem = misuse(options);
    if (!problem.isEmpty())
        return fail(BadInput, problem);
    return runWithPlugins(options);
}
