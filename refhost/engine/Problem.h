#pragma once

#include <QString>

/// Why something the user gave cannot be used: a reason to compare, a place, and a text for people.
struct Problem
{
    enum class Reason {
        UnreadableFile,
        UnwritableFile,
        MalformedJson,
        WrongKind,  ///< another kind of JSON value than expected
        UnknownKey, ///< a key nobody reads, or a property the operation does not have
        MissingKey,
        UnknownType,     ///< no operation, or no variable type, of that name
        UnknownChoice,   ///< a mode label outside the choice list
        UnfitValue,      ///< a value its variable or property cannot hold
        UnknownVariable, ///< a variable the task does not declare
        PluginNotLoaded,
        UnknownFormat,    ///< a file that is no packed task, or of a format there never was
        NewerFormat,      ///< a packed task made by a program newer than this
        WrongLength,      ///< a packed task that is cut off, or has something behind it
        AlteredFile,      ///< a packed task whose checksum does not fit
        MalformedContent, ///< a packed task that says what none can say
        UnfitRecord,      ///< a record its operation does not read from end to end
        BeyondJson        ///< something a JSON task cannot say exactly
    };

    Reason reason = Reason::UnfitValue;
    QString file;    ///< where it stands, empty when it does not come from a file
    QString place;   ///< for instance "steps[3].cutMode" or "line 3, column 8", may be empty
    QString message; ///< what stands there and what is expected

    /// File, place and message in one line.
    QString toString() const;
};

/// That the user gave no name of a file, where one is needed.
Problem emptyFileName(Problem::Reason reason);
