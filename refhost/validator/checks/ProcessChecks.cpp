#include "refhost/validator/checks/CheckRows.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/trials/MemoryLimit.h"
#include "refhost/validator/trials/OperationCheck.h"
#include "refhost/validator/trials/OutputCapture.h"
#include "refhost/validator/trials/SampleSettings.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepUse.h"

#include "Operation.h"

#include <QDir>
#include <QLocale>
#include <QProcessEnvironment>
#include <QTextCodec>

#include <algorithm>
#include <cfenv>
#include <clocale>
#include <functional>

namespace {

/// Examines what happened since the last call; `place` names the call of the plug-in in between.
/// Returns what is wrong with it, empty when nothing is.
using Examination = std::function<QString(const QString &place)>;

/// Makes each kind of call on a new step for each setting and examines each of them.
void examineUses(Specimen &specimen, const Examination &examine)
{
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const StepUse &use : stepUses()) {
        for (const TrialSetting &setting : settings) {
            const QString place = QStringLiteral("%1, %2").arg(use.name, setting.toString());
            specimen.doing(place);
            const auto step = specimen.newStep();
            setOrdinary(*step, specimen.schema());
            setting.applyTo(*step);
            use.call(specimen, *step);
            const QString fault = examine(place);
            if (!fault.isEmpty())
                specimen.fail(fault);
        }
    }
}

/// Loads the plug-in and makes all calls of a host, and examines each of them.
Outcome examineCalls(CheckContext &context, const Examination &examine)
{
    Outcome outcome;
    const auto add = [&](const QString &fault) {
        if (!fault.isEmpty())
            outcome.fail(fault);
    };
    if (const auto obstacle = context.loadPlugin())
        return {Verdict::Skipped, *obstacle};
    add(examine(QStringLiteral("loading")));
    context.newPrototypes();
    add(examine(QStringLiteral("createPrototypes")));
    const Outcome found = examineOperations(context, OperationNeeds::Clone,
                                            [&](Specimen &each) { examineUses(each, examine); });
    for (const QString &detail : found.details()) {
        if (found.verdict() == Verdict::Failed)
            outcome.fail(detail);
        else
            outcome.remark(detail);
    }
    return outcome;
}

/// A setting of the process that all plug-ins and the host share.
struct ProcessSetting
{
    QString name;
    QString (*value)();
};

QString environment()
{
    QStringList variables = QProcessEnvironment::systemEnvironment().toStringList();
    variables.sort();
    return variables.join(QLatin1Char('\n'));
}

const QList<ProcessSetting> &processSettings()
{
    static const QList<ProcessSetting> settings{
        {QStringLiteral("the default locale"), [] { return QLocale().name(); }},
        {QStringLiteral("the locale of the C library"),
         [] { return QString::fromLocal8Bit(std::setlocale(LC_ALL, nullptr)); }},
        {QStringLiteral("the codec of the locale"),
         [] { return QString::fromLatin1(QTextCodec::codecForLocale()->name()); }},
        {QStringLiteral("the working folder"), [] { return QDir::currentPath(); }},
        {QStringLiteral("the environment"), environment},
        {QStringLiteral("the rounding of numbers"),
         [] { return QString::number(std::fegetround()); }},
    };
    return settings;
}

QStringList currentValues()
{
    QStringList values;
    for (const ProcessSetting &setting : processSettings())
        values.append(setting.value());
    return values;
}

/// The lines of `text` that `other` does not have: of an environment, the variables that differ.
QString linesBeyond(const QString &text, const QString &other)
{
    const QStringList otherLines = other.split(QLatin1Char('\n'));
    QStringList lines = text.split(QLatin1Char('\n'));
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [&](const QString &line) { return otherLines.contains(line); }),
                lines.end());
    return shownText(lines.join(QLatin1String(", ")));
}

Outcome runProcessCheck(CheckContext &context)
{
    // A plug-in that sets a common locale would set the one that is already there.
    QLocale::setDefault(QLocale(QLocale::Icelandic));
    QStringList before = currentValues();
    return examineCalls(context, [&](const QString &place) {
        const QStringList after = currentValues();
        QStringList changes;
        for (int i = 0; i < after.size(); ++i) {
            const QString &old = before.at(i);
            if (after.at(i) != old) {
                changes.append(QStringLiteral("%1 from %2 to %3")
                                   .arg(processSettings().at(i).name, linesBeyond(old, after.at(i)),
                                        linesBeyond(after.at(i), old)));
            }
        }
        before = after;
        return changes.isEmpty()
                   ? QString()
                   : QStringLiteral("%1: changes %2").arg(place, changes.join(QLatin1String(", ")));
    });
}

Outcome runOutputCheck(CheckContext &context)
{
    OutputCapture capture;
    if (!capture.isActive())
        return {Verdict::Skipped, QStringLiteral("output cannot be captured on this system")};
    return examineCalls(context, [&](const QString &place) {
        const QByteArray output = capture.take();
        return output.isEmpty() ? QString()
                                : QStringLiteral("%1: prints %2")
                                      .arg(place, shownText(QString::fromLocal8Bit(output)));
    });
}

/// Makes one kind of call several times for each setting. Returns the number of calls.
int repeatUse(const Specimen &specimen, const StepUse &use, const QList<TrialSetting> &settings,
              Operation &prototype)
{
    constexpr int rounds = 4;
    for (int round = 0; round < rounds; ++round) {
        for (const TrialSetting &setting : settings) {
            const std::unique_ptr<Operation> step(prototype.clone(nullptr));
            setOrdinary(*step, specimen.schema());
            setting.applyTo(*step);
            use.call(specimen, *step);
        }
    }
    return rounds * settings.size();
}

/// The memory that is allocated after these calls and not before, in bytes a call.
qint64 growthPerCall(const Specimen &specimen, const StepUse &use,
                     const QList<TrialSetting> &settings)
{
    const qint64 before = allocatedBytes().value_or(0);
    const int calls = repeatUse(specimen, use, settings, specimen.prototype());
    return (allocatedBytes().value_or(0) - before) / calls;
}

void examineMemory(Specimen &specimen)
{
    // The memory allocator keeps a few kilobytes of what was freed, less than that for each call.
    constexpr qint64 permitted = 32;
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const StepUse &use : stepUses()) {
        specimen.doing(use.name + QStringLiteral(", repeated"));
        // The first calls may fill caches; a leak goes on in all the others.
        growthPerCall(specimen, use, settings);
        const qint64 growth = std::min(growthPerCall(specimen, use, settings),
                                       growthPerCall(specimen, use, settings));
        if (growth > permitted) {
            specimen.fail(QStringLiteral("%1: %2 bytes a call are not freed, on average")
                              .arg(use.name)
                              .arg(growth));
            // The steps for the other calls are clones, too.
            if (&use == &stepUses().first())
                return;
        }
    }
}

Outcome runMemoryCheck(CheckContext &context)
{
    if (!allocatedBytes())
        return {Verdict::Skipped, QStringLiteral("allocated memory cannot be measured here")};
    return examineOperations(context, OperationNeeds::Clone, examineMemory);
}

} // namespace

std::vector<CheckRow> processChecks()
{
    return {
        {{QStringLiteral("behaviour.process"), 4,
          QStringLiteral(
              "Locale, working folder and environment of the process stay as they are.")},
         runProcessCheck,
         true},
        {{QStringLiteral("behaviour.output"), 4,
          QStringLiteral("Nothing is printed to standard output.")},
         runOutputCheck,
         true},
        {{QStringLiteral("behaviour.memory"), 4,
          QStringLiteral("Memory that a call allocates is freed.")},
         runMemoryCheck},
    };
}
