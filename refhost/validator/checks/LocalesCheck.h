#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// hostile.locales: the same operations for users in other countries.
class LocalesCheck : public OperationCheck
{
public:
    LocalesCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
