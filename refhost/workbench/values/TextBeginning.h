#pragma once

#include <QString>
#include <QStringView>

/// Whether the unit (UTF-16 code unit) at `index` is the first of a surrogate pair.
bool isPairAt(QStringView text, int index);

/// The first units of a text, at most `units`; a surrogate pair is not cut in two.
QString textBeginning(const QString &text, int units);
