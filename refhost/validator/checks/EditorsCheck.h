#pragma once

#include "refhost/validator/PropertyCheck.h"

/// schema.editors: editor words are known and fit the type of their property.
class EditorsCheck : public PropertyCheck
{
public:
    EditorsCheck();

protected:
    void examine(const QString &name, const OperationClass &declared, const QMetaProperty &property,
                 Outcome &outcome) const override;
};
