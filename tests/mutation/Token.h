#pragma once

#include <QString>

/// A piece of C++ source text. Comments, white space and preprocessor lines are none.
struct Token
{
    enum class Kind { Identifier, Number, Text, Character, RawText, Punctuator };

    Kind kind = Kind::Punctuator;
    int begin = 0; ///< offset of the first character in the source
    int end = 0;   ///< offset after the last one
    QString text;
};
