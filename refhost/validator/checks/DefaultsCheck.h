#pragma once

#include "refhost/validator/Check.h"

/// schema.defaults: defaults are choices that exist, and the same in each fresh object.
class DefaultsCheck : public Check
{
public:
    DefaultsCheck();

    Outcome run(CheckContext &context) const override;
};
