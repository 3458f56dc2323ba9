#pragma once

#include "tests/mutation/Token.h"

#include <QString>
#include <QVector>

/// The tokens of a C++ source text. Adjacent punctuation is one token where C++ knows one ("->",
/// "<<", "&&"); a text prefix ("u8") belongs to the text.
QVector<Token> tokenize(const QString &source);
