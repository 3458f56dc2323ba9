#pragma once

#include "refhost/validator/Check.h"

/// file.qt: the host's Qt will load a library that was built like this one.
class QtVersionCheck : public Check
{
public:
    QtVersionCheck();

    Outcome run(CheckContext &context) const override;
};
