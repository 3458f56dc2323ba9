#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.record: a step comes back from its record as it was.
class RecordCheck : public OperationCheck
{
public:
    RecordCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
