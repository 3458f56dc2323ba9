#pragma once

#include "refhost/validator/Check.h"

/// catalog.ids: type identifiers are given, unique, and begin with the prefix of the manifest.
class TypeIdsCheck : public Check
{
public:
    TypeIdsCheck();

    Outcome run(CheckContext &context) const override;
};
