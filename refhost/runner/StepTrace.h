#pragma once

#include "refhost/engine/OperandTrace.h"

#include <QStringList>

class Console;
class Operation;
class VariableScope;
class WarningExplainer;
struct StepReport;

/// Shows on standard error what each step of a run found, did, wrote and complained of.
class StepTrace
{
public:
    /// Reads the operands of a step that is about to run on `scope`.
    void begin(const Operation &step, const VariableScope &scope);

    /// Shows the step that was begun last, its warnings with their explanations. `scope` is as the
    /// step left it.
    void show(const StepReport &report, const VariableScope &scope, WarningExplainer &explainer,
              const Console &console) const;

private:
    OperandTrace m_reader;
    QStringList m_operands; ///< a line for each that the editor shows
};
