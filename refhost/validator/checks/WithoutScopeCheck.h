#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.withoutScope: without variables to work on nothing happens.
class WithoutScopeCheck : public OperationCheck
{
public:
    WithoutScopeCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
