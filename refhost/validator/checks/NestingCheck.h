#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// hostile.nesting: lists in lists in lists, deeper than any stack.
class NestingCheck : public OperationCheck
{
public:
    NestingCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
