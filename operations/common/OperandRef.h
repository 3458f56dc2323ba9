#pragma once

#include <QString>

/// One operand text taken apart: a reference to a variable, or a literal.
struct OperandRef
{
    bool isVariable = false;
    QString name;    ///< of a reference: the variable, exactly as the scope knows it
    QString path;    ///< of a reference: the member path after the first ".", empty without one
    QString literal; ///< of a literal: the whole operand text
};
