#include "refhost/validator/checks/LocalesCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/trials/MemoryLimit.h"
#include "refhost/validator/trials/OperationRecord.h"
#include "refhost/validator/trials/RandomSource.h"
#include "refhost/validator/trials/RandomTask.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"
#include "refhost/validator/trials/Thrown.h"

#include "Operation.h"

#include <QLocale>

#include <vector>

namespace {

/// What a step looks like to its host under one locale.
struct Appearance
{
    QString typeId;
    QByteArray record;
    QByteArray cloneRecord;
    QByteArray loadedRecord; ///< of a step that has read the record written under the first locale
    QString summary;
    VariableScope after;
    std::optional<QString> thrown;
};

Appearance appearanceOf(Specimen &specimen, const Task &task, const QByteArray &firstRecord)
{
    const Operation &step = *task.steps.front();
    Appearance appearance;
    appearance.typeId = step.typeId();
    appearance.record = saveRecord(step).bytes;
    appearance.thrown = thrownBy([&] {
        const std::unique_ptr<Operation> copy(step.clone(nullptr));
        appearance.cloneRecord = saveRecord(*copy).bytes;
        appearance.summary = step.toString();
    });
    const auto loaded = specimen.newStep();
    loadRecord(*loaded, firstRecord.isNull() ? appearance.record : firstRecord);
    appearance.loadedRecord = saveRecord(*loaded).bytes;
    appearance.after = task.startScope();
    traceStep(*task.steps.front(), appearance.after);
    return appearance;
}

/// Holds what must not depend on the locale against the first one.
void compare(Specimen &specimen, const QString &locale, const Appearance &actual,
             const Appearance &first)
{
    const auto demand = [&](bool isFulfilled, const QString &what) {
        if (!isFulfilled)
            specimen.fail(QStringLiteral("%1 with the locale \"%2\"").arg(what, locale));
    };
    demand(actual.typeId == first.typeId, QStringLiteral("typeId is another one"));
    demand(actual.record == first.record, QStringLiteral("the record is another one"));
    demand(actual.cloneRecord == first.cloneRecord, QStringLiteral("the clone is another one"));
    demand(actual.loadedRecord == first.loadedRecord,
           QStringLiteral("a record is read in another way"));
    demand(actual.thrown == first.thrown, QStringLiteral("toString or clone throws"));
}

/// Differences that may be meant so: numbers as users of the locale write them.
QString permittedDifference(const Appearance &actual, const Appearance &first)
{
    if (!areSame(actual.after, first.after))
        return QStringLiteral("results");
    return actual.summary == first.summary ? QString() : QStringLiteral("summaries");
}

} // namespace

LocalesCheck::LocalesCheck()
    : OperationCheck(
          {QStringLiteral("hostile.locales"), 5,
           QStringLiteral("Identifiers, records and clones are the same in every locale.")},
          Needs::CloneAndResultVariable)
{
}

void LocalesCheck::examine(Specimen &specimen, CheckContext &context) const
{
    constexpr int taskCount = 100;
    constexpr int mebibytes = 1024;
    limitMemory(mebibytes);
    QStringList dependent; // what depends on which locale
    RandomSource source(context.seed(), specimen.name());
    for (int i = 0; i < taskCount && !specimen.hasFailed(); ++i) {
        const Task task = randomTask(source, specimen);
        Appearance first;
        for (const char *name : {"C", "de_DE", "ar_EG", "hi_IN", "tr_TR", "zh_CN"}) {
            const QString locale = QString::fromLatin1(name);
            specimen.doing(QStringLiteral("a random step with the locale ") + locale);
            QLocale::setDefault(QLocale(locale));
            const Appearance appearance = appearanceOf(specimen, task, first.record);
            if (first.record.isNull())
                first = appearance;
            compare(specimen, locale, appearance, first);
            const QString difference = permittedDifference(appearance, first);
            if (!difference.isEmpty())
                dependent.append(QStringLiteral("%1 with %2").arg(difference, locale));
        }
    }
    QLocale::setDefault(QLocale::c());
    dependent.removeDuplicates();
    dependent.sort();
    if (!dependent.isEmpty()) {
        specimen.remark(QStringLiteral("depend on the locale: ") +
                        dependent.join(QLatin1String(", ")));
    }
}
