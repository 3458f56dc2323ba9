#pragma once

#include "refhost/validator/Check.h"

/// schema.conditions: show_when names a mode of the same class and values it can have.
class ConditionsCheck : public Check
{
public:
    ConditionsCheck();

    Outcome run(CheckContext &context) const override;
};
