#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// hostile.steps: random steps, most of them such as a user might make, many of them not.
class StepsCheck : public OperationCheck
{
public:
    StepsCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
