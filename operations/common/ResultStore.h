#pragma once

#include <QString>

class VariableScope;

/// Writes `text` to the variable called `name`, exactly as named. True when it was written. A
/// variable that is not declared as a string is left alone, with one warning; without a scope or a
/// name nothing happens.
bool storeStringResult(VariableScope *scope, const QString &name, const QString &text);
