#pragma once

#include <QString>

class VariableScope;

/// Writes `text` to the variable called `name`, exactly as named. True when it was written. A
/// variable that is not declared as a string is left alone, with one warning; without a scope or a
/// name nothing happens.
bool storeStringResult(VariableScope *scope, const QString &name, const QString &text);

/// Writes `value` to the variable called `name` in the form its declared type asks for, as
/// `convertToVarType` gives it: an integer is rounded, a text is the shortest, a table is emptied.
/// True when it was written. A variable that is not declared, or a list, is left alone, with one
/// warning; without a scope or a name nothing happens.
bool storeNumberResult(VariableScope *scope, const QString &name, double value);
