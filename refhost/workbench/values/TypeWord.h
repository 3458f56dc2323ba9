#pragma once

#include "VarType.h"

#include <QString>
#include <QStringList>

// The types of variables in the words of the window.

/// The word for a type as a user reads it.
QString typeWord(VarType type);

/// Those of all types that a variable can have, in their order.
QStringList typeWords();

/// The type of one of these words, otherwise `VarType::None`.
VarType typeFromWord(const QString &word);
