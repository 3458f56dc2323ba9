#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.exceptions: no function throws, whatever the settings.
class ExceptionsCheck : public OperationCheck
{
public:
    ExceptionsCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
