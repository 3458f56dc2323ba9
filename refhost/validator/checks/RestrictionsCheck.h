#pragma once

#include "refhost/validator/Check.h"

/// schema.restrictions: each editor has the restriction it needs, and no other.
class RestrictionsCheck : public Check
{
public:
    RestrictionsCheck();

    Outcome run(CheckContext &context) const override;
};
