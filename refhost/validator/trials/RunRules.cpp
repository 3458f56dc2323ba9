#include "refhost/validator/trials/RunRules.h"

#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

#include <algorithm>

namespace {

/// An unfit variable is a reason for a line of its own.
int mostWarnings(const Specimen &specimen)
{
    const QList<PropertySchema> &properties = specimen.schema().properties();
    return std::max(
        1, static_cast<int>(std::count_if(properties.begin(), properties.end(), isVariableName)));
}

} // namespace

QString brokenRule(const Specimen &specimen, const TracedRun &trace, const QString &resultVariable,
                   const QStringList &changed)
{
    if (trace.thrown)
        return QStringLiteral("doOperation throws %1").arg(*trace.thrown);
    for (const LoggedMessage &message : trace.messages) {
        if (message.type != QtWarningMsg) {
            return QStringLiteral("doOperation logs a %1 message, %2")
                .arg(message.typeWord(), shownText(message.text));
        }
    }
    if (trace.warningCount() > mostWarnings(specimen)) {
        return QStringLiteral("doOperation logs %1 warnings, for instance %2")
            .arg(trace.warningCount())
            .arg(shownText(trace.messages.constFirst().text));
    }
    QStringList names = trace.written + changed;
    names.removeAll(resultVariable);
    if (!names.isEmpty()) {
        return QStringLiteral("doOperation writes %1, which is not its result variable")
            .arg(shownText(names.constFirst()));
    }
    return {};
}
