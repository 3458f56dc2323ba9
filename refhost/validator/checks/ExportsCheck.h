#pragma once

#include "refhost/validator/Check.h"

/// file.exports: the library exports Qt's entry points and nothing else.
class ExportsCheck : public Check
{
public:
    ExportsCheck();

    Outcome run(CheckContext &context) const override;
};
