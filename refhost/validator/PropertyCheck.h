#pragma once

#include "refhost/validator/Check.h"

class OperationClass;
class QMetaProperty;

/// A check that looks at each property of each operation by itself, as it is declared.
class PropertyCheck : public Check
{
public:
    Outcome run(CheckContext &context) const final;

protected:
    explicit PropertyCheck(CheckInfo info);

    /// Examines a property of the operation called `name`.
    virtual void examine(const QString &name, const OperationClass &declared,
                         const QMetaProperty &property, Outcome &outcome) const = 0;
};
