#pragma once

#include <QByteArray>

// The bytes of a library file, before it is loaded. Of libraries in a form that this program does
// not know, nothing is said and nothing changed.

/// Whether the library is there to its end, as far as its headers tell. One that a linker is still
/// writing is not, and would take the process along if it were loaded.
bool isWholeLibrary(const QByteArray &library);

/// The library with all its objects to itself. Without this, two versions of it in one process
/// would share texts and other objects that the compiler marks as the only ones of their name.
QByteArray separated(QByteArray library);
