#pragma once

#include "refhost/validator/Check.h"

/// file.metadata: the file says what it is before it is loaded.
class MetadataCheck : public Check
{
public:
    MetadataCheck();

    Outcome run(CheckContext &context) const override;
};
