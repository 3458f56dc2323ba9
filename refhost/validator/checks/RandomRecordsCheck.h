#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.randomRecords: bytes that are no record are survived.
class RandomRecordsCheck : public OperationCheck
{
public:
    RandomRecordsCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
