#pragma once

#include "refhost/validator/Check.h"

/// schema.members: the meta-object has properties and class info, and nothing else.
class MembersCheck : public Check
{
public:
    MembersCheck();

    Outcome run(CheckContext &context) const override;
};
