#include "refhost/validator/checks/RepetitionCheck.h"

#include "refhost/validator/OperationClass.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/ShownValue.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

#include "Operation.h"

#include <list>

namespace {

/// What differs between two runs that should be the same, empty when nothing does.
QString difference(const TracedRun &actual, const VariableScope &after, const StepTrial &expected)
{
    const QStringList names = differingNames(after, expected.after);
    if (!names.isEmpty()) {
        const QString &name = names.constFirst();
        return QStringLiteral("%1 is %2 instead of %3")
            .arg(name, shownValue(after.get(name)), shownValue(expected.after.get(name)));
    }
    if (actual.written != expected.trace.written)
        return QStringLiteral("other variables are written");
    return actual.messages == expected.trace.messages ? QString()
                                                      : QStringLiteral("other lines are logged");
}

/// Runs one step with all the settings in turn, each time with a scope of its own, and compares
/// with what a new step does.
class UsedStep
{
public:
    explicit UsedStep(Specimen &specimen)
        : m_specimen(specimen)
        , m_class(specimen.prototype())
        , m_step(specimen.newStep())
    {
    }

    void run(const TrialSetting &setting)
    {
        const StepTrial expected = tryStep(m_specimen, setting);
        const StepTrial second = tryStep(m_specimen, setting);
        tell(setting, QStringLiteral("a second new step"),
             difference(second.trace, second.after, expected));
        setOrdinary(*m_step, m_specimen.schema());
        setting.applyTo(*m_step);
        const QStringList unchanged = values();
        // A step that keeps a scope in mind is found out only while the scope is there.
        VariableScope &scope = m_scopes.emplace_back(expected.before);
        const TracedRun trace = traceStep(*m_step, scope);
        tell(setting, QStringLiteral("a step used before"), difference(trace, scope, expected));
        if (values() != unchanged)
            m_specimen.fail(setting.toString() + QStringLiteral(": the run changes a property"));
    }

private:
    void tell(const TrialSetting &setting, const QString &who, const QString &fault)
    {
        if (!fault.isEmpty())
            m_specimen.fail(QStringLiteral("%1: with %2 %3").arg(setting.toString(), who, fault));
    }

    QStringList values() const
    {
        QStringList values;
        for (const QMetaProperty &property : m_class.properties())
            values.append(property.read(m_step.get()).toString());
        return values;
    }

    Specimen &m_specimen;
    OperationClass m_class;
    std::unique_ptr<Operation> m_step;
    std::list<VariableScope> m_scopes;
};

} // namespace

RepetitionCheck::RepetitionCheck()
    : OperationCheck({QStringLiteral("behaviour.repetition"), 4,
                      QStringLiteral("The same settings and variables give the same, again and "
                                     "again.")})
{
}

void RepetitionCheck::examine(Specimen &specimen, CheckContext &) const
{
    UsedStep step(specimen);
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const TrialSetting &setting : settings)
        step.run(setting);
}
