#pragma once

#include "refhost/validator/Check.h"

/// catalog.icons: the icon of each operation can be opened.
class IconFilesCheck : public Check
{
public:
    IconFilesCheck();

    Outcome run(CheckContext &context) const override;
};
