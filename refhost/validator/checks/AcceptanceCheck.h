#pragma once

#include "refhost/validator/Check.h"

/// file.accepted: this host accepts the plug-in: interface, its version, capabilities.
class AcceptanceCheck : public Check
{
public:
    AcceptanceCheck();

    Outcome run(CheckContext &context) const override;
};
