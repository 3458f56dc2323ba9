#pragma once

#include "refhost/validator/Check.h"

/// schema.keys: class info has a label for each property, known keys, no others, in their order.
class KeysCheck : public Check
{
public:
    KeysCheck();

    Outcome run(CheckContext &context) const override;
};
