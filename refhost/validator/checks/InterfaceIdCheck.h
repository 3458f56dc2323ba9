#pragma once

#include "refhost/validator/Check.h"

/// file.interface: the metadata names this interface.
class InterfaceIdCheck : public Check
{
public:
    InterfaceIdCheck();

    Outcome run(CheckContext &context) const override;
};
