#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// hostile.threads: steps at work on several threads at once.
class ThreadsCheck : public OperationCheck
{
public:
    ThreadsCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
