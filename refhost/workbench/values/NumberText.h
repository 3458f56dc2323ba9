#pragma once

#include <QString>

/// The shortest text of a number that reads back as the same number, for instance "-0" and "inf".
QString numberText(double number);

/// A whole number with separators between the thousands, alike in all languages of the window.
QString groupedNumber(qint64 number);
