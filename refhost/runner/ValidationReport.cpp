#include "refhost/runner/ValidationReport.h"

#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/TextColumns.h"
#include "refhost/runner/ValidateOptions.h"

#include <QJsonArray>

#include <algorithm>

namespace {

const QList<Verdict> allVerdicts{Verdict::Passed,  Verdict::Warning,  Verdict::Failed,
                                 Verdict::Crashed, Verdict::TimedOut, Verdict::Skipped};

QJsonObject checkToJson(const CheckReport &report)
{
    QJsonObject json = report.outcome.toJson();
    json.insert(QStringLiteral("id"), report.check.id);
    json.insert(QStringLiteral("level"), report.check.level);
    json.insert(QStringLiteral("sentence"), report.check.sentence);
    json.insert(QStringLiteral("milliseconds"), report.milliseconds);
    return json;
}

/// The level, and whether the checks of the operand language ran; that they did not is of interest
/// where their level was asked for.
QString shownExtent(const ValidateOptions &options)
{
    constexpr int levelOfOperands = 4;
    QString extent = QStringLiteral("level %1, ").arg(options.level);
    if (options.operands)
        extent += QStringLiteral("with --operands, ");
    else if (options.level >= levelOfOperands)
        extent += QStringLiteral("without --operands, ");
    return extent;
}

} // namespace

ValidationReport::ValidationReport(const QString &file, const QList<CheckReport> &reports)
    : m_file(file)
    , m_reports(reports)
{
}

int ValidationReport::count(Verdict verdict) const
{
    return static_cast<int>(
        std::count_if(m_reports.begin(), m_reports.end(), [=](const CheckReport &report) {
            return report.outcome.verdict() == verdict;
        }));
}

QString ValidationReport::summary(const ValidateOptions &options) const
{
    QStringList counts;
    for (const Verdict verdict : allVerdicts) {
        if (count(verdict) > 0)
            counts.append(QStringLiteral("%1 %2").arg(count(verdict)).arg(verdictWord(verdict)));
    }
    const QString extent = options.only.isEmpty() ? shownExtent(options) : QString();
    return QStringLiteral("%1 (%2seed %3)")
        .arg(counts.join(QLatin1String(", ")), extent, QString::number(options.seed));
}

QStringList ValidationReport::lines(const ValidateOptions &options) const
{
    QList<QStringList> rows;
    for (const CheckReport &report : m_reports) {
        rows.append(
            {verdictWord(report.outcome.verdict()), report.check.id, report.check.sentence});
    }
    const QStringList aligned = alignColumns(rows);
    QStringList lines{oneLine(m_file)};
    for (int i = 0; i < m_reports.size(); ++i) {
        lines.append(aligned.at(i));
        for (const QString &detail : m_reports.at(i).outcome.details())
            lines.append(QStringLiteral("    ") + oneLine(detail));
    }
    lines.append(summary(options));
    return lines;
}

QJsonObject ValidationReport::toJson(const ValidateOptions &options) const
{
    QJsonArray checks;
    for (const CheckReport &report : m_reports)
        checks.append(checkToJson(report));
    QJsonObject counts;
    for (const Verdict verdict : allVerdicts)
        counts.insert(verdictWord(verdict), count(verdict));
    return {{QStringLiteral("plugin"), m_file},
            {QStringLiteral("seed"), static_cast<qint64>(options.seed)},
            {QStringLiteral("level"), options.level},
            {QStringLiteral("operands"), options.operands},
            {QStringLiteral("checks"), checks},
            {QStringLiteral("counts"), counts}};
}

int ValidationReport::exitStatus() const
{
    const auto isObstacle = [](const CheckReport &report) {
        return report.check.provides > report.check.needs &&
               report.outcome.verdict() == Verdict::Failed;
    };
    if (std::any_of(m_reports.begin(), m_reports.end(), isObstacle))
        return PluginNotLoaded;
    if (count(Verdict::Crashed) + count(Verdict::TimedOut) > 0)
        return PluginCrashed;
    return count(Verdict::Failed) > 0 ? CheckFailed : Success;
}
