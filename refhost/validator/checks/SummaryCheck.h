#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.summary: the line that shows a step in a list.
class SummaryCheck : public OperationCheck
{
public:
    SummaryCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
