#include "refhost/validator/checks/SummaryCheck.h"

#include "refhost/validator/trials/SampleSettings.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

#include <algorithm>

namespace {

bool isLineBreak(QChar unit)
{
    return unit == QLatin1Char('\n') || unit == QLatin1Char('\r') || unit == QChar::LineSeparator ||
           unit == QChar::ParagraphSeparator;
}

/// Whether the name of a variable stands in the text somewhere without a "$".
bool isBare(const QString &name, const QString &text)
{
    for (int at = text.indexOf(name); at >= 0; at = text.indexOf(name, at + 1)) {
        if (at == 0 || text.at(at - 1) != QLatin1Char('$'))
            return true;
    }
    return false;
}

void examineSummary(Specimen &specimen, const Operation &step, const QString &place)
{
    QString summary;
    QString typeName;
    const auto ask = [&] {
        summary = step.toString();
        typeName = step.typeName();
    };
    if (thrownBy(ask))
        return;
    const QString said = QStringLiteral("%1: toString: %2").arg(place, shownText(summary));
    if (!summary.startsWith(typeName + QStringLiteral(": ")))
        specimen.fail(QStringLiteral("%1; expected to begin with \"%2: \"").arg(said, typeName));
    if (std::any_of(summary.begin(), summary.end(), isLineBreak))
        specimen.fail(said + QStringLiteral(" is more than one line"));
}

/// Sets variables by names that stand nowhere else, and looks how they are shown.
void examineVariables(Specimen &specimen)
{
    const auto step = specimen.newStep();
    setOrdinary(*step, specimen.schema());
    QStringList names;
    for (const PropertySchema &property : specimen.schema().properties()) {
        if (property.defaultValue.userType() != QMetaType::QString)
            continue;
        const QString name = QStringLiteral("Qvx%1Zk").arg(names.size());
        names.append(name);
        const QString value = isVariableName(property) ? name : QLatin1Char('$') + name;
        TrialSetting{property.name, value}.applyTo(*step);
    }
    specimen.doing(QStringLiteral("toString, variables"));
    QString summary;
    thrownBy([&] { summary = step->toString(); });
    for (const QString &name : qAsConst(names)) {
        if (isBare(name, summary)) {
            specimen.fail(QStringLiteral("toString: %1 shows the variable %2 without \"$\"")
                              .arg(shownText(summary), name));
        }
    }
}

} // namespace

SummaryCheck::SummaryCheck()
    : OperationCheck(
          {QStringLiteral("behaviour.summary"), 4,
           QStringLiteral("The summary is one line: name, colon, variables with \"$\".")})
{
}

void SummaryCheck::examine(Specimen &specimen, CheckContext &) const
{
    specimen.doing(QStringLiteral("toString, defaults"));
    examineSummary(specimen, specimen.prototype(), QStringLiteral("defaults"));
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const TrialSetting &setting : settings) {
        specimen.doing(QStringLiteral("toString, ") + setting.toString());
        const auto step = specimen.newStep();
        setOrdinary(*step, specimen.schema());
        setting.applyTo(*step);
        examineSummary(specimen, *step, setting.toString());
    }
    examineVariables(specimen);
}
