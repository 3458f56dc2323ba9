#pragma once

#include "refhost/validator/Check.h"

/// schema.editors: editor words are known and fit the type of their property.
class EditorsCheck : public Check
{
public:
    EditorsCheck();

    Outcome run(CheckContext &context) const override;
};
