#pragma once

#include "refhost/validator/Check.h"

/// catalog.texts: no operation leaves out a text that a user sees.
class TextsCheck : public Check
{
public:
    TextsCheck();

    Outcome run(CheckContext &context) const override;
};
