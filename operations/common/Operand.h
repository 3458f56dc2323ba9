#pragma once

#include "operations/common/OperandRef.h"

#include <QVariant>

class VariableScope;

// From the text of an operand property to the value a step works on. All functions are free of
// state; `scope` may be null, which is a scope without variables.

/// Takes an operand text apart. "$name" and "$name.path" are references, every other text is a
/// literal: "$" alone, too. Nothing is trimmed. A "." right after the "$" belongs to the name.
OperandRef parseOperand(const QString &text);

/// The value behind an operand. A literal that reads as a number (C locale) is that `double`, any
/// other literal its text. A reference is the variable's value or the member its path names: "Rows"
/// and "Count", "Columns", "Items" of a list, else a property of a `QObject`. What cannot be
/// resolved is an invalid `QVariant`, never an error.
QVariant resolveOperand(const OperandRef &ref, VariableScope *scope);

/// The operand as text: parsed, resolved and rendered with `variantToText`.
QString resolveTextOperand(const QString &operand, VariableScope *scope);

/// The operand as a number. `*ok`, when given, is always written; it is false for a text that is no
/// number, a list, and whatever cannot be resolved, and the result is then 0.
double resolveNumberOperand(VariableScope *scope, const QString &operand, bool *ok);

/// The operand as an integer: the number converted with `truncateToInt`, or `fallback` when it is
/// not a number.
int resolveIntOperand(VariableScope *scope, const QString &operand, int fallback);
