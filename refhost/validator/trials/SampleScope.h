#pragma once

#include "VariableScope.h"

#include <QString>
#include <QStringList>

// The variables that trials run on.

/// The name of the variable for the result.
QString resultName();

/// Variables of every type with ordinary values, and the one for the result, of `resultType` and
/// not yet written; not declared when that is `VarType::None`.
VariableScope sampleScope(VarType resultType);

/// The name of the sample variable of `type`; for `VarType::None` a name that is not declared.
QString sampleName(VarType type);

/// Whether the two scopes have the same variables, of the same types and values. Numbers that are
/// none ("nan") are the same here.
bool areSame(const VariableScope &left, const VariableScope &right);

/// The names of the variables that differ between the two scopes, declared in one of them or in
/// both.
QStringList differingNames(const VariableScope &left, const VariableScope &right);
