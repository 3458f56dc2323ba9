#pragma once

#include "refhost/validator/Check.h"

/// file.reload: the library can be unloaded and loaded again.
class ReloadCheck : public Check
{
public:
    ReloadCheck();

    std::optional<QString> prepare(CheckContext &context) const override;
    Outcome run(CheckContext &context) const override;
};
