#pragma once

#include "refhost/validator/Check.h"

/// catalog.weights: the manifest has a weight for each type and root, and for nothing else.
class WeightsCheck : public Check
{
public:
    WeightsCheck();

    Outcome run(CheckContext &context) const override;
};
