#pragma once

#include <QString>

/// What `text.replace(search, replacement, sensitivity)` gives: all occurrences replaced, from left
/// to right and without overlaps; what is put in is not searched. An empty text is found before
/// every unit and at the end.
///
/// Takes time linear in the texts and the result, and asks for the memory of the result once, and
/// besides for 32 MiB at most. Throws `std::bad_alloc` when there is not as much.
QString replacedText(const QString &text, const QString &search, const QString &replacement,
                     Qt::CaseSensitivity sensitivity);
