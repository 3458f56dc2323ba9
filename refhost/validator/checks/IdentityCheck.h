#pragma once

#include "refhost/validator/Check.h"

/// catalog.identity: identifier, version and name of the plug-in are well-formed.
class IdentityCheck : public Check
{
public:
    IdentityCheck();

    Outcome run(CheckContext &context) const override;
};
