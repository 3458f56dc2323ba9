#pragma once

#include "refhost/validator/Check.h"

/// catalog.iconPictures: the icon of each operation shows something at the sizes a host uses.
class IconPicturesCheck : public Check
{
public:
    IconPicturesCheck();

    std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv) const override;
    Outcome run(CheckContext &context) const override;
};
