#pragma once

#include "refhost/validator/Check.h"

/// schema.choices: choice lists belong to COMBO properties and have clean labels.
class ChoicesCheck : public Check
{
public:
    ChoicesCheck();

    Outcome run(CheckContext &context) const override;
};
