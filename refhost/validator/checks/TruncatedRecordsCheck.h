#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.truncatedRecords: a record that ends too early is survived and told.
class TruncatedRecordsCheck : public OperationCheck
{
public:
    TruncatedRecordsCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
