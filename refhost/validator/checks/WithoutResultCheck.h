#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.withoutResult: a step that is told no variable for its result says so.
class WithoutResultCheck : public OperationCheck
{
public:
    WithoutResultCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
