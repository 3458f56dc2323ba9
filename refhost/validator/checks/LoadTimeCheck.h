#pragma once

#include "refhost/validator/Check.h"

/// file.loadTime: loading takes no time that a user would notice.
class LoadTimeCheck : public Check
{
public:
    LoadTimeCheck();

    std::optional<QString> prepare(CheckContext &context) const override;
    Outcome run(CheckContext &context) const override;
};
