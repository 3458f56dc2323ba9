#pragma once

#include "refhost/validator/PropertyCheck.h"

/// schema.properties: properties are declared as the host expects: type, accessors, flags.
class PropertiesCheck : public PropertyCheck
{
public:
    PropertiesCheck();

protected:
    void examine(const QString &name, const OperationClass &declared, const QMetaProperty &property,
                 Outcome &outcome) const override;
};
