#pragma once

#include "refhost/workbench/window/Workbench.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QTest>
#include <QVariantMap>

#include <functional>
#include <utility>

/// A step that does what a test wants.
class DeedOperation : public Operation
{
public:
    using Deed = std::function<void(VariableScope &)>;

    explicit DeedOperation(Deed deed, QObject *parent = nullptr)
        : Operation(parent)
        , m_deed(std::move(deed))
    {
    }

    QString root() const override { return {}; }
    QString typeId() const override { return QStringLiteral("deed"); }
    QString typeName() const override { return QStringLiteral("deed"); }
    QString icon() const override { return {}; }
    void doOperation() const override { m_deed(*scope); }
    QString toString() const override { return QStringLiteral("deed"); }
    QString description() const override { return QStringLiteral("deed"); }
    Operation *clone(QObject *parent) const override { return new DeedOperation(m_deed, parent); }

private:
    Deed m_deed;
};

/// A workbench with the text operations, and short ways to give it a task and to run that.
struct RunBench
{
    Workbench bench{{QStringLiteral(PLUGIN_FILE)}};
    TaskDocument &document = bench.document;
    RunSession &run = bench.run;

    StepState newStepOf(const QString &typeId, const QVariantMap &settings) const
    {
        return ::newStepOf(bench.library.catalog(), typeId, settings);
    }

    /// The identifier of the step, inserted at `row` or else at the end.
    int addStep(const StepState &step, int row = -1)
    {
        const int at = row < 0 ? document.state().steps.size() : row;
        document.change("add", document.state().withSteps(at, {step}), {});
        return step.id;
    }

    int addStep(const QString &typeId, const QVariantMap &settings, int row = -1)
    {
        return addStep(newStepOf(typeId, settings), row);
    }

    int addDeed(DeedOperation::Deed deed, int row = -1)
    {
        return addStep(newStep(std::make_unique<DeedOperation>(std::move(deed))), row);
    }

    /// A step that appends `text` to the variable "r".
    int addAppend(const QString &text, int row = -1)
    {
        return addStep("text.append",
                       {{"sourceText", "$r"}, {"appendText", text}, {"resultVar", "r"}}, row);
    }

    int addVariable(const QString &name, VarType type, const QVariant &value = {})
    {
        const VariableState variable{newStateId(), {name, type, value}};
        document.change(
            "add", document.state().withVariable(document.state().variables.size(), variable), {});
        return variable.id;
    }

    void setBreakpoint(int step, bool on = true)
    {
        document.change("breakpoint", document.state().withBreakpoint(step, on), {});
    }

    void removeStep(int step)
    {
        document.change("remove", document.state().withoutSteps({step}), {});
    }

    QVariant value(const QString &name) const { return run.scope().get(name); }

    /// Whether the run comes to a halt.
    bool halts() const
    {
        return QTest::qWaitFor([this] { return run.state() != RunSession::State::Running; });
    }

    bool runs()
    {
        run.run();
        return halts();
    }
};
