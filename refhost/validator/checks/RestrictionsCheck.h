#pragma once

#include "refhost/validator/PropertyCheck.h"

/// schema.restrictions: each editor has the restriction it needs, and no other.
class RestrictionsCheck : public PropertyCheck
{
public:
    RestrictionsCheck();

protected:
    void examine(const QString &name, const OperationClass &declared, const QMetaProperty &property,
                 Outcome &outcome) const override;
};
