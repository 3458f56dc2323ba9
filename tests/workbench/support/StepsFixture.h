#pragma once

#include "refhost/workbench/window/Workbench.h"
#include "tests/workbench/support/NewStep.h"

#include "Operation.h"

#include <QStringList>

/// A workbench with steps for the tests of the panels that show them.
class StepsFixture
{
public:
    explicit StepsFixture(const QStringList &plugins)
        : bench(plugins)
    {
    }

    /// A new step of that type with those properties.
    StepState step(const QString &typeId, const QVariantMap &properties = {}) const
    {
        return newStepOf(bench.library.catalog(), typeId, properties);
    }

    /// Opens a task of appending steps whose sources are `sources`.
    void open(const QStringList &sources)
    {
        TaskState state;
        for (const QString &source : sources)
            state.steps.append(step("text.append", {{"sourceText", source}}));
        bench.document.replace(state);
    }

    /// The sources of the steps in their order; a breakpoint is a "*".
    QString sources() const
    {
        QStringList texts;
        for (const StepState &each : bench.document.state().steps) {
            texts.append(each.operation->property("sourceText").toString() +
                         (each.breakpoint ? "*" : ""));
        }
        return texts.join(",");
    }

    int id(int row) const { return bench.document.state().steps.at(row).id; }

    Workbench bench;
};
