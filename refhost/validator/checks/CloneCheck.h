#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.clone: a clone has all that the original has.
class CloneCheck : public OperationCheck
{
public:
    CloneCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
