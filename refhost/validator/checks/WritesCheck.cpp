#include "refhost/validator/checks/WritesCheck.h"

#include "refhost/validator/CheckContext.h"
#include "refhost/validator/trials/NamesInFile.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

#include "Operation.h"

#include <vector>

namespace {

/// Tells which variables the run wrote, or declared anew, besides that of the result.
void tellWrites(Specimen &specimen, const TrialSetting &setting, QStringList names)
{
    names.removeAll(resultName());
    names.removeDuplicates();
    if (!names.isEmpty()) {
        specimen.fail(QStringLiteral("%1: writes %2 besides its result variable")
                          .arg(setting.toString(), names.join(QLatin1String(", "))));
    }
}

/// Names of variables that the plug-in may write although no property names them: each text in its
/// file, also as an addition to the name of the result variable.
QStringList suspectedNames(const QString &file)
{
    QStringList names;
    const QStringList texts = namesInFile(file);
    for (const QString &text : texts)
        names << text << resultName() + text << text + resultName();
    return names;
}

/// Returns for each type a scope with the suspected names as variables of that type.
std::vector<VariableScope> suspectedScopes(const QString &file)
{
    const QStringList names = suspectedNames(file);
    std::vector<VariableScope> scopes;
    for (const VarType type : {VarType::Int, VarType::Double, VarType::String, VarType::Bool,
                               VarType::List, VarType::Table}) {
        VariableScope scope = sampleScope(VarType::None);
        for (const QString &name : names) {
            if (scope.typeOf(name) == VarType::None)
                scope.declare(name, type);
        }
        scopes.push_back(scope);
    }
    return scopes;
}

/// The ordinary settings, and each choice and flag.
QList<TrialSetting> modesToTry(const OperationSchema &schema)
{
    QList<TrialSetting> modes;
    const QList<TrialSetting> settings = settingsToTry(schema);
    for (const TrialSetting &setting : settings) {
        const PropertySchema *const property = schema.property(setting.property);
        if (!property || property->defaultValue.userType() != QMetaType::QString)
            modes.append(setting);
    }
    return modes;
}

/// Runs a new step on the scope itself: copies of thousands of variables take their time.
TracedRun traceMode(Specimen &specimen, const TrialSetting &mode, VariableScope &scope)
{
    specimen.doing(QStringLiteral("doOperation, ") + mode.toString());
    const auto step = specimen.newStep();
    setOrdinary(*step, specimen.schema());
    mode.applyTo(*step);
    return traceStep(*step, scope);
}

} // namespace

WritesCheck::WritesCheck()
    : OperationCheck({QStringLiteral("behaviour.writes"), 4,
                      QStringLiteral("Only the result variable is written.")},
                     Needs::CloneAndResultVariable)
{
}

void WritesCheck::examine(Specimen &specimen, CheckContext &context) const
{
    const QList<TrialSetting> settings = settingsToTry(specimen.schema());
    for (const TrialSetting &setting : settings) {
        const StepTrial trial = tryStep(specimen, setting);
        // A variable may also be declared anew, which is no write.
        tellWrites(specimen, setting,
                   trial.trace.written + differingNames(trial.after, trial.before));
    }
    // The process has one plug-in only.
    static const std::vector<VariableScope> scopes = suspectedScopes(context.file());
    const QList<TrialSetting> modes = modesToTry(specimen.schema());
    for (VariableScope scope : scopes) {
        scope.declare(resultName(), specimen.resultType());
        for (const TrialSetting &mode : modes)
            tellWrites(specimen, mode, traceMode(specimen, mode, scope).written);
    }
}
