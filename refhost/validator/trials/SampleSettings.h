#pragma once

#include "refhost/engine/OperationSchema.h"

#include <QList>
#include <QString>
#include <QVariant>

class Operation;

/// A value for one property of a step; for none when the name is empty.
struct TrialSetting
{
    QString property;
    QVariant value;

    void applyTo(Operation &step) const;

    /// "text = \"$line\"".
    QString toString() const;
};

/// Whether an editor offers the property as a text or a reference.
bool isTextOperand(const PropertySchema &property);
/// Whether the property takes a number or a reference.
bool isNumberOperand(const PropertySchema &property);
/// Whether the property takes the bare name of a variable.
bool isVariableName(const PropertySchema &property);

/// Gives each property a value by which a user would try the operation out: references to the
/// sample variables where the annotations ask for them, the first choice of a list. The result goes
/// into the sample variable for it.
void setOrdinary(Operation &step, const OperationSchema &schema);

/// What a user may come to set in place of an ordinary value, one property at a time; the first is
/// no change. `resultVar` keeps its ordinary value.
QList<TrialSetting> settingsToTry(const OperationSchema &schema);
