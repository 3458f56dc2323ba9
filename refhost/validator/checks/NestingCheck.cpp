#include "refhost/validator/checks/NestingCheck.h"

#include "refhost/validator/trials/RunRules.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/Specimen.h"
#include "refhost/validator/trials/StepTrial.h"

#include "Operation.h"

#include <QThread>

#include <functional>

namespace {

constexpr int depth = 50000;

/// A thread with the stack that some systems give to each but the first.
class SmallThread : public QThread
{
public:
    explicit SmallThread(std::function<void()> work)
        : m_work(std::move(work))
    {
        constexpr uint mebi = 1 << 20;
        setStackSize(mebi);
    }

protected:
    void run() override { m_work(); }

private:
    std::function<void()> m_work;
};

QVariantList deepList()
{
    QVariantList list{QStringLiteral("x")};
    for (int i = 1; i < depth; ++i)
        list = QVariantList{QStringLiteral("y"), QVariant(list)};
    return list;
}

/// The variables. They are never destroyed: Qt would recurse to do it.
const VariableScope &deepScope()
{
    static const VariableScope *const scope = [] {
        auto *variables = new VariableScope;
        const QVariantList list = deepList();
        variables->declare(QStringLiteral("deep"), VarType::List, list);
        variables->declare(QStringLiteral("deepTable"), VarType::Table,
                           QVariantList{QVariant(list), QVariant(list)});
        return variables;
    }();
    return *scope;
}

QStringList valuesFor(const PropertySchema &property)
{
    if (property.name == QLatin1String("resultVar"))
        return {};
    if (isVariableName(property))
        return {QStringLiteral("deep"), QStringLiteral("deepTable")};
    if (isTextOperand(property) || isNumberOperand(property)) {
        return {QStringLiteral("$deep"), QStringLiteral("$deepTable"),
                QStringLiteral("$deep.Columns"), QStringLiteral("$deep.Items")};
    }
    return {};
}

void examineSetting(Specimen &specimen, const TrialSetting &setting)
{
    const QString place =
        QStringLiteral("a list nested %1 deep, %2").arg(depth).arg(setting.toString());
    specimen.doing(QStringLiteral("doOperation, ") + place);
    const auto step = specimen.newStep();
    setOrdinary(*step, specimen.schema());
    setting.applyTo(*step);
    auto *const scope = new VariableScope(deepScope());
    scope->declare(resultName(), specimen.resultType());
    TracedRun trace;
    SmallThread thread([&] { trace = traceStep(*step, *scope); });
    thread.start();
    thread.wait();
    const QString fault = brokenRule(specimen, trace, resultName(), {});
    if (!fault.isEmpty())
        specimen.fail(QStringLiteral("%1: %2").arg(place, fault));
}

} // namespace

NestingCheck::NestingCheck()
    : OperationCheck({QStringLiteral("hostile.nesting"), 5,
                      QStringLiteral("Deeply nested lists are no danger, on a small stack.")},
                     Needs::CloneAndResultVariable)
{
}

void NestingCheck::examine(Specimen &specimen, CheckContext &) const
{
    for (const PropertySchema &property : specimen.schema().properties()) {
        const QStringList values = valuesFor(property);
        for (const QString &value : values)
            examineSetting(specimen, {property.name, value});
    }
}
