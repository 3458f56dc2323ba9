#include "refhost/validator/checks/LargeTextsCheck.h"

#include "refhost/validator/trials/MemoryLimit.h"
#include "refhost/validator/trials/RunRules.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

#include "Operation.h"

namespace {

/// Several values at once, and what to call them.
struct Case
{
    QString name;
    QList<TrialSetting> settings;
};

VariableScope largeScope()
{
    constexpr int units = 16 << 20; // 32 MiB
    constexpr int copies = 24;
    QString text = QStringLiteral("aab ").repeated(units / 4);
    VariableScope scope = sampleScope(VarType::None);
    scope.declare(QStringLiteral("large"), VarType::String, text);
    QVariantList list;
    for (int i = 0; i < copies; ++i)
        list.append(text);
    scope.declare(QStringLiteral("largeList"), VarType::List, list);
    return scope;
}

/// The names of the properties for which `is` holds, but that of the result.
QStringList propertiesThat(bool (*is)(const PropertySchema &), const Specimen &specimen)
{
    QStringList names;
    for (const PropertySchema &property : specimen.schema().properties()) {
        if (property.name != QLatin1String("resultVar") && is(property))
            names.append(property.name);
    }
    return names;
}

QList<TrialSetting> forAll(const QStringList &names, const QString &value)
{
    QList<TrialSetting> settings;
    for (const QString &name : names)
        settings.append({name, value});
    return settings;
}

/// One operand is large, all are, and all but one.
QList<Case> textCases(const Specimen &specimen)
{
    const QString large = QStringLiteral("$large");
    const QStringList operands = propertiesThat(isTextOperand, specimen);
    QList<Case> cases{{QStringLiteral("all texts of 32 MiB"), forAll(operands, large)}};
    for (const QString &operand : operands) {
        cases.append({operand + QStringLiteral(" of 32 MiB"), {{operand, large}}});
        cases.append(
            {QStringLiteral("all texts but %1 of 32 MiB").arg(operand),
             forAll(operands, large) + QList<TrialSetting>{{operand, QStringLiteral("a")}}});
    }
    return cases;
}

QList<Case> otherCases(const Specimen &specimen)
{
    const QString most = QStringLiteral("2147483647");
    const QStringList numbers = propertiesThat(isNumberOperand, specimen);
    const QStringList names = propertiesThat(isVariableName, specimen);
    QList<Case> cases;
    for (const QString &number : numbers)
        cases.append({QStringLiteral("%1 = %2").arg(number, most), {{number, most}}});
    if (!numbers.isEmpty())
        cases.append({QStringLiteral("all numbers %1").arg(most), forAll(numbers, most)});
    if (!names.isEmpty()) {
        cases.append({QStringLiteral("a list of 24 texts of 32 MiB"),
                      forAll(names, QStringLiteral("largeList"))});
    }
    return cases;
}

/// The modes in which to try all cases: each choice of each list.
QList<TrialSetting> modes(const Specimen &specimen)
{
    QList<TrialSetting> settings{{}};
    for (const PropertySchema &property : specimen.schema().properties()) {
        for (int i = 1; i < property.choices.size(); ++i)
            settings.append({property.name, i});
        if (property.defaultValue.userType() == QMetaType::Bool)
            settings.append({property.name, !property.defaultValue.toBool()});
    }
    return settings;
}

void examineCase(Specimen &specimen, const Case &large, const TrialSetting &mode,
                 const VariableScope &variables)
{
    const QString place = QStringLiteral("%1, %2").arg(large.name, mode.toString());
    specimen.doing(QStringLiteral("doOperation, ") + place);
    const auto step = specimen.newStep();
    setOrdinary(*step, specimen.schema());
    mode.applyTo(*step);
    for (const TrialSetting &setting : large.settings)
        setting.applyTo(*step);
    VariableScope scope = variables;
    scope.declare(resultName(), specimen.resultType());
    const TracedRun trace = traceStep(*step, scope);
    const QString fault = brokenRule(specimen, trace, resultName(), {});
    if (!fault.isEmpty())
        specimen.fail(QStringLiteral("%1: %2").arg(place, fault));
    else if (trace.written.isEmpty() && trace.messages.isEmpty())
        specimen.warn(place + QStringLiteral(": neither writes its result nor logs a warning"));
}

} // namespace

LargeTextsCheck::LargeTextsCheck()
    : OperationCheck(
          {QStringLiteral("hostile.largeTexts"), 5,
           QStringLiteral("A result too large for the memory is a warning, not the end.")},
          Needs::CloneAndResultVariable)
{
}

std::optional<QString> LargeTextsCheck::prepare(CheckContext &context) const
{
    if (auto obstacle = memoryLimitObstacle())
        return obstacle;
    return OperationCheck::prepare(context);
}

void LargeTextsCheck::examine(Specimen &specimen, CheckContext &) const
{
    constexpr int mebibytes = 256;
    static const VariableScope variables = largeScope();
    limitMemory(mebibytes);
    const QList<Case> cases = textCases(specimen) + otherCases(specimen);
    const QList<TrialSetting> settings = modes(specimen);
    for (const TrialSetting &mode : settings) {
        for (const Case &large : cases)
            examineCase(specimen, large, mode, variables);
    }
}
