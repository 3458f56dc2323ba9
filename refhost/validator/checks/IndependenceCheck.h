#pragma once

#include "refhost/validator/Check.h"

/// schema.independence: writing one property changes no other.
class IndependenceCheck : public Check
{
public:
    IndependenceCheck();

    Outcome run(CheckContext &context) const override;
};
