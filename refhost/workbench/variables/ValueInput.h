#pragma once

#include "refhost/engine/Result.h"

#include "VarType.h"

#include <QString>
#include <QVariant>

// Between values and what a user types for them in one line.

/// The text of a scalar value as it is offered for editing; empty for an invalid one.
QString inputText(const QVariant &value);

/// The value a user has typed for a variable of `type`, by the same rules as on a command line. No
/// text at all is no value of a number or a truth value. The message of a problem tells a user what
/// is expected.
Result<QVariant> valueFromInput(const QString &text, VarType type);

/// Whether the value is too long, or not plain enough, for an editor of one line.
bool needsViewer(const QVariant &value, VarType type);
