#pragma once

#include <QColor>

class QPalette;
class QStyleOptionViewItem;

/// The colours with a meaning, fit for a light or a dark palette. Everything else takes the colours
/// of the palette.
struct Shades
{
    QColor error;       ///< text and badges of what is wrong
    QColor warning;     ///< of what is doubtful, and of warnings of a run
    QColor note;        ///< of what is worth a look
    QColor reference;   ///< text of a reference to a variable
    QColor quiet;       ///< text that only adds to another
    QColor invisible;   ///< white space and control characters made visible
    QColor currentStep; ///< background of the step that runs next
    QColor written;     ///< background of what the last step wrote
    QColor breakpoint;
    QColor line; ///< thin lines between things

    /// Those that fit the palette.
    static Shades of(const QPalette &palette);

    /// That of quiet text in an item of a view, which may be selected.
    static QColor quietIn(const QStyleOptionViewItem &item);
};

/// Whether the palette is one of light text on a dark ground.
bool isDark(const QPalette &palette);
