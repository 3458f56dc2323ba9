#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.writes: a step leaves all variables alone but that for its result.
class WritesCheck : public OperationCheck
{
public:
    WritesCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
