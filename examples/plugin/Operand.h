#pragma once

#include <QString>
#include <QVariant>

#include <optional>

class VariableScope;

// An operand is what a user types into a field: "$name" for a variable, "$name.Count" for what a
// list tells of itself, or anything else, which stands for itself. All plug-ins read it alike.

/// What the operand stands for; invalid when it refers to nothing. A literal that reads as a number
/// is that number: the host's language makes no difference between 7 and "7".
QVariant operandValue(const QString &operand, const VariableScope &scope);

/// The operand as text: the elements of a list with ", " between them, nested ones alike. What is
/// not there is an empty text, never a failure.
QString operandText(const QString &operand, const VariableScope &scope);

/// The operand as a number; none when it is not one.
std::optional<double> operandNumber(const QString &operand, const VariableScope &scope);
