#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.cloneLife: a clone and its original do not depend on each other.
class CloneLifeCheck : public OperationCheck
{
public:
    CloneLifeCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
