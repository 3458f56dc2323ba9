#pragma once

#include <QString>

#include <functional>

/// What an editor has to say about its value, shown below the field.
struct Remark
{
    enum class Kind {
        None, ///< nothing to say
        Quiet,
        Note,
        Warning,
        Error
    };

    Kind kind = Kind::None;
    QString text;
    QString fixText = {};           ///< of a button that mends it, empty for none
    std::function<void()> fix = {}; ///< what the button does
};
