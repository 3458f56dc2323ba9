#pragma once

#include "refhost/validator/Check.h"

/// schema.resultVar: the last property is resultVar, the name of a variable.
class ResultVariableCheck : public Check
{
public:
    ResultVariableCheck();

    Outcome run(CheckContext &context) const override;
};
