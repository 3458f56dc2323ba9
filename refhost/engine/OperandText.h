#pragma once

#include <QString>
#include <QVariant>

#include <optional>

class VariableScope;

/// The text of an operand taken apart as every step reads it: a reference to a variable, such as
/// "$line" or "$items.Count", or a literal.
struct OperandText
{
    bool isReference = false;
    QString name;    ///< of a reference: the variable, compared exactly
    QString path;    ///< of a reference: what follows the first "." in it, may be empty
    QString literal; ///< of a literal: the whole text
};

// This is the host's own reading, so that it can tell what a step will find without running it. A
// test holds it against the reading of the operations.

OperandText readOperand(const QString &text);

/// The number as which a literal travels; none when it stays a text.
std::optional<double> literalNumber(const QString &literal);

/// What the operand stands for in `scope`; invalid when it refers to nothing.
QVariant operandValue(const OperandText &operand, const VariableScope &scope);

/// A value as a numeric operand takes it; none when it is no number.
std::optional<double> numberInValue(const QVariant &value);

/// A value as a text operand takes it: the elements of a list with ", " between them, the lists
/// within it flattened; empty for an invalid value.
QString textOfValue(const QVariant &value);
