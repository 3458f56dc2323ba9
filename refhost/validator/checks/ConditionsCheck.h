#pragma once

#include "refhost/validator/PropertyCheck.h"

/// schema.conditions: show_when names a mode of the same class and values it can have.
class ConditionsCheck : public PropertyCheck
{
public:
    ConditionsCheck();

protected:
    void examine(const QString &name, const OperationClass &declared, const QMetaProperty &property,
                 Outcome &outcome) const override;
};
