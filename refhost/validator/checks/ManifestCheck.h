#pragma once

#include "refhost/validator/Check.h"

/// catalog.manifest: the manifest says what the functions of the root object say.
class ManifestCheck : public Check
{
public:
    ManifestCheck();

    Outcome run(CheckContext &context) const override;
};
