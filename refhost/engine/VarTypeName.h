#pragma once

#include "VarType.h"

#include <QString>
#include <QStringList>

/// The word for `type` in task files: "int", "double", "string", "bool", "list" or "table".
QString varTypeName(VarType type);

/// The type a word stands for, `VarType::None` when it is no such word.
VarType varTypeFromName(const QString &name);

/// All the words, in the order of the types.
QStringList varTypeNames();
