#pragma once

#include <QString>

/// What a sample text is written in.
enum class Alphabet { Ascii, Chinese };

/// The name of the alphabet in tables.
inline QString alphabetName(Alphabet alphabet)
{
    return alphabet == Alphabet::Ascii ? QStringLiteral("ASCII") : QStringLiteral("Chinese");
}
