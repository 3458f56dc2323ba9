#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.repetition: a run depends on nothing but its settings and its variables.
class RepetitionCheck : public OperationCheck
{
public:
    RepetitionCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
