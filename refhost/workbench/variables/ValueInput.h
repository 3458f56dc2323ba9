#pragma once

#include "refhost/engine/Result.h"

#include "VarType.h"

#include <QString>
#include <QStringList>
#include <QVariant>

// Between values and what a user types for them in one line.

/// The text of a scalar value as it is offered for editing; empty for an invalid one.
QString inputText(const QVariant &value);

/// The value a user has typed for a variable of `type`, by the same rules as on a command line. No
/// text at all is no value of a number or a truth value. The message of a problem tells a user what
/// is expected.
Result<QVariant> valueFromInput(const QString &text, VarType type);

/// The name of a type for users, such as "整数".
QString typeLabel(VarType type);

/// The names of all types, in the order of the types.
QStringList typeLabels();

/// The type of that name, `VarType::None` when there is none.
VarType typeFromLabel(const QString &label);
