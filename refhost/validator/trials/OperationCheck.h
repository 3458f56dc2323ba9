#pragma once

#include "refhost/validator/Check.h"

#include <functional>

class Specimen;

/// Properties of an operation without which a check cannot examine it.
enum class OperationNeeds { Nothing, Clone, CloneAndResultVariable };

/// Calls `examine` for each operation that has what is needed and returns what it found.
Outcome examineOperations(CheckContext &context, OperationNeeds needs,
                          const std::function<void(Specimen &)> &examine);

/// A check that looks at each operation by itself.
class OperationCheck : public Check
{
public:
    Outcome run(CheckContext &context) const final;

protected:
    using Needs = OperationNeeds;

    explicit OperationCheck(CheckInfo info, Needs needs = Needs::Clone);

    /// Examines one operation that has what is needed.
    virtual void examine(Specimen &specimen, CheckContext &context) const = 0;

private:
    Needs m_needs;
};
