#include "refhost/runner/CheckCommand.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/check/TaskCheck.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/TaskFile.h"

#include "Operation.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr Severity severities[] = {Severity::Error, Severity::Warning, Severity::Note};

int countOf(Severity severity, const QList<Finding> &findings)
{
    const auto count = std::count_if(findings.begin(), findings.end(), [=](const Finding &finding) {
        return finding.severity == severity;
    });
    return static_cast<int>(count);
}

QString severityText(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return RunnerText::tr("error");
    case Severity::Warning:
        return RunnerText::tr("warning");
    case Severity::Note:
        break;
    }
    return RunnerText::tr("note");
}

/// Returns a number of findings of one severity, such as "1 error" or "2 errors".
QString counted(int count, Severity severity)
{
    const QString number = QString::number(count);
    switch (severity) {
    case Severity::Error:
        return count == 1 ? RunnerText::tr("1 error") : RunnerText::tr("%1 errors").arg(number);
    case Severity::Warning:
        return count == 1 ? RunnerText::tr("1 warning") : RunnerText::tr("%1 warnings").arg(number);
    case Severity::Note:
        break;
    }
    return count == 1 ? RunnerText::tr("1 note") : RunnerText::tr("%1 notes").arg(number);
}

QString summaryOf(const QList<Finding> &findings)
{
    if (findings.isEmpty())
        return RunnerText::tr("no findings");
    QStringList parts;
    for (const Severity severity : severities) {
        if (const int count = countOf(severity, findings))
            parts.append(counted(count, severity));
    }
    const QString all = findings.size() == 1
                            ? RunnerText::tr("1 finding")
                            : RunnerText::tr("%1 findings").arg(QString::number(findings.size()));
    return RunnerText::tr("%1: %2").arg(all, listText(parts));
}

void printFinding(const Finding &finding, Console &console)
{
    const QString indent = QStringLiteral("  ");
    //: the place of a finding, how grave it is, what it is, and its name in brackets
    console.print(oneLine(RunnerText::tr("%1: %2: %3 [%4]")
                              .arg(finding.place(), severityText(finding.severity), finding.message,
                                   mistakeId(finding.mistake))));
    console.print(indent + oneLine(RunnerText::tr("what happens: %1").arg(finding.consequence)));
    console.print(indent + oneLine(RunnerText::tr("what to do: %1").arg(finding.remedy)));
}

QJsonObject findingToJson(const Finding &finding)
{
    const bool isStep = finding.step >= 0;
    return {{QStringLiteral("id"), mistakeId(finding.mistake)},
            {QStringLiteral("severity"), severityName(finding.severity)},
            {QStringLiteral("step"), isStep ? QJsonValue(finding.step) : QJsonValue()},
            {QStringLiteral("type"), isStep ? QJsonValue(finding.typeId) : QJsonValue()},
            {QStringLiteral("property"), finding.property},
            {QStringLiteral("text"), finding.text},
            {QStringLiteral("message"), finding.message},
            {QStringLiteral("consequence"), finding.consequence},
            {QStringLiteral("remedy"), finding.remedy},
            {QStringLiteral("meant"), finding.meant}};
}

QJsonObject findingsToJson(const QList<Finding> &findings)
{
    QJsonArray array;
    for (const Finding &finding : findings)
        array.append(findingToJson(finding));
    QJsonObject counts;
    for (const Severity severity : severities)
        counts.insert(severityName(severity), countOf(severity, findings));
    return {{QStringLiteral("findings"), array}, {QStringLiteral("counts"), counts}};
}

} // namespace

QString CheckCommand::name() const
{
    return QStringLiteral("check");
}

QString CheckCommand::summary() const
{
    return QStringLiteral("Finds likely mistakes in a task without running it.");
}

QString CheckCommand::example() const
{
    return QStringLiteral("oprun check examples/invoice.json");
}

QStringList CheckCommand::arguments() const
{
    return {QStringLiteral("TASK")};
}

QList<QCommandLineOption> CheckCommand::options() const
{
    return {Options::json()};
}

bool CheckCommand::isForPrograms(const QCommandLineParser &options) const
{
    return options.isSet(Options::json());
}

int CheckCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                          const QStringList &arguments, Console &console) const
{
    const Result<Task> task = readTask(arguments.first(), catalog);
    if (!task) {
        console.complain(task.problem().toString());
        return BadInput;
    }
    const Result<FactBook> book = FactBook::read(catalog);
    if (!book) {
        console.complain(book.problem().toString());
        return BadInput;
    }
    const QList<Finding> findings = checkTask(task.value(), catalog, book.value());
    if (options.isSet(Options::json())) {
        console.printJson(findingsToJson(findings));
    } else {
        for (const Finding &finding : findings)
            printFinding(finding, console);
        console.print(summaryOf(findings));
    }
    return findings.isEmpty() ? Success : Found;
}
