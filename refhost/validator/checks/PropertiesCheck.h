#pragma once

#include "refhost/validator/Check.h"

/// schema.properties: properties are declared as the host expects: type, accessors, flags.
class PropertiesCheck : public Check
{
public:
    PropertiesCheck();

    Outcome run(CheckContext &context) const override;
};
