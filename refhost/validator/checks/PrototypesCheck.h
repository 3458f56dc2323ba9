#pragma once

#include "refhost/validator/Check.h"

/// catalog.prototypes: each call makes the same prototypes as fresh objects without a parent.
class PrototypesCheck : public Check
{
public:
    PrototypesCheck();

    Outcome run(CheckContext &context) const override;
};
