#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.recordForms: a record is laid out as its stream asks for.
class RecordFormsCheck : public OperationCheck
{
public:
    RecordFormsCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
