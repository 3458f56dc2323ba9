#pragma once

#include "VarType.h"

#include <QString>
#include <QVariant>

/// A value in a few characters. Made in the time of the preview, whatever the size of the value.
struct ValuePreview
{
    QString text;         ///< the beginning of the value, control characters made visible
    QString detail;       ///< how much there is of it, empty where the text says all
    bool isEmpty = false; ///< whether there is nothing in it, or no value

    /// Text and detail in one line.
    QString toString() const;
};

/// The preview of a value of a variable of `type`; an invalid value is the empty one of the type.
/// At most `units` UTF-16 code units of it are shown.
ValuePreview previewOf(const QVariant &value, VarType type, int units = 120);

/// The shortest text of a number that reads back as the same number, for instance "-0" and "inf".
QString numberText(double number);

/// Whether the value is too long, or not plain enough, for an editor of one line.
bool needsViewer(const QVariant &value, VarType type);
