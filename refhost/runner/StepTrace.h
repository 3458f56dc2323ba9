#pragma once

#include "VariableScope.h"

class Console;
struct StepReport;

/// Shows on standard error what each step of a run found, did, wrote and complained of.
class StepTrace
{
public:
    /// `start` is the scope before the first step.
    explicit StepTrace(const VariableScope &start);

    /// Shows one step; to be called after each, in order. `scope` is as the step left it.
    void show(const StepReport &report, const VariableScope &scope, const Console &console);

private:
    VariableScope m_before; ///< as the step to be shown next finds it
};
