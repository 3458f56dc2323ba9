#pragma once

#include "VarType.h"

#include <QString>
#include <QVariant>

/// A value in a few characters. Made in the time of the preview, whatever the size of the value.
struct ValuePreview
{
    QString text;         ///< the beginning of the value, invisible characters made visible
    QString detail;       ///< how much there is of it, empty where the text says all
    bool isEmpty = false; ///< whether there is nothing in it, or no value

    /// Text and detail in one line.
    QString toString() const;
};

/// The preview of a value of a variable of `type`, for a place of its own; an invalid value is the
/// empty one of the type. At most `units` UTF-16 code units of it are shown.
ValuePreview previewOf(const QVariant &value, VarType type, int units = 120);

/// A value on one line among other words: texts stand in quotes, and how much there is of a value
/// is only said where it is cut off after `units` UTF-16 code units. An invalid value is
/// "（没有值）".
QString valueLine(const QVariant &value, int units = 60);

/// The value a variable of `type` has when it was given none.
QVariant emptyValue(VarType type);
