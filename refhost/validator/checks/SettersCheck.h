#pragma once

#include "refhost/validator/Check.h"

/// schema.setters: a property gives back exactly what was written, however odd.
class SettersCheck : public Check
{
public:
    SettersCheck();

    Outcome run(CheckContext &context) const override;
};
