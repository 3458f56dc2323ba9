#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// hostile.largeTexts: texts that are as large as the memory, or larger.
class LargeTextsCheck : public OperationCheck
{
public:
    LargeTextsCheck();

    /// Also needs a system on which memory can be limited.
    std::optional<QString> prepare(CheckContext &context) const override;

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
