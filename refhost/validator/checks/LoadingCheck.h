#pragma once

#include "refhost/validator/Check.h"

/// file.loads: the library loads with all of its symbols and makes its root object.
class LoadingCheck : public Check
{
public:
    LoadingCheck();

    Outcome run(CheckContext &context) const override;
};
