#pragma once

#include "refhost/validator/PropertyCheck.h"

/// schema.choices: choice lists belong to COMBO properties and have clean labels.
class ChoicesCheck : public PropertyCheck
{
public:
    ChoicesCheck();

protected:
    void examine(const QString &name, const OperationClass &declared, const QMetaProperty &property,
                 Outcome &outcome) const override;
};
