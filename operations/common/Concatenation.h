#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>

/// A text of `size` UTF-16 code units to be written over. Throws `std::bad_alloc` when there is no
/// memory for it, or when no text can be as long.
QString unwrittenText(qint64 size);

/// The pieces one after the other, in one allocation; a null text if all of them are null. Throws
/// as `unwrittenText` does.
QString concatenated(std::initializer_list<QStringView> pieces);
