#pragma once

#include "refhost/validator/Check.h"

class Specimen;

/// A check that looks at each operation by itself.
class OperationCheck : public Check
{
public:
    Outcome run(CheckContext &context) const final;

protected:
    /// What an operation needs for the check to make sense.
    enum class Needs { Nothing, Clone, CloneAndResultVariable };

    explicit OperationCheck(CheckInfo info, Needs needs = Needs::Clone);

    /// Examines one operation that has what is needed.
    virtual void examine(Specimen &specimen, CheckContext &context) const = 0;

private:
    Needs m_needs;
};
