#pragma once

#include <QString>

/// A declared name that somebody may have meant by another one, and how the two differ.
struct NearName
{
    enum class Difference {
        Far,    ///< no declared name is near
        Space,  ///< only in white space around it
        Braces, ///< only in braces around it
        Case,   ///< only in the case of letters
        Letters,
        Tail ///< the name goes on where the declared one ends
    };

    Difference difference = Difference::Far;
    QString name;
};
