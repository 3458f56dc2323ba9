#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.resultTypes: a result goes into a variable it fits, or nowhere.
class ResultTypesCheck : public OperationCheck
{
public:
    ResultTypesCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
