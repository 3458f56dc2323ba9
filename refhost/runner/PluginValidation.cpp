#include "refhost/runner/PluginValidation.h"

#include "refhost/runner/ValidateOptions.h"
#include "refhost/runner/rows/Interruption.h"

#include <algorithm>

namespace {

bool isAskedFor(const CheckInfo &check, const ValidateOptions &options)
{
    if (!options.only.isEmpty())
        return options.only.contains(check.id);
    return check.option.isEmpty() ? check.level <= options.level : options.operands;
}

/// Whether a check that is asked for stands on what this one provides.
bool isNeeded(const CheckInfo &check, const QList<CheckInfo> &all, const ValidateOptions &options)
{
    return check.provides > check.needs &&
           std::any_of(all.begin(), all.end(), [&](const CheckInfo &other) {
               return other.needs >= check.provides && isAskedFor(other, options);
           });
}

} // namespace

QList<CheckReport> validatePlugin(const QString &file, const Probe &probe,
                                  const ValidateOptions &options, const Interruption &interruption)
{
    QList<CheckReport> reports;
    Ground ground = Ground::File;
    QString missing; // the check that should have provided the next ground
    for (const CheckInfo &check : probe.checks()) {
        const bool asked = isAskedFor(check, options);
        if (!asked && !isNeeded(check, probe.checks(), options))
            continue;
        if (check.needs > ground) {
            const QString reason = QStringLiteral("%1 did not pass").arg(missing);
            if (asked)
                reports.append({check, Outcome(Verdict::Skipped, reason), 0});
            continue;
        }
        const CheckReport report = probe.run(check, file, options, interruption);
        if (interruption.requested())
            break;
        const bool passed = report.outcome.verdict() == Verdict::Passed;
        if (passed)
            ground = std::max(ground, check.provides);
        else if (check.provides > ground)
            missing = check.id;
        if (asked || !passed)
            reports.append(report);
    }
    return reports;
}
