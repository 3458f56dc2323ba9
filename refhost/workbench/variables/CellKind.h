#pragma once

#include "refhost/engine/Result.h"

#include <QString>
#include <QStringList>
#include <QVariant>

/// What an element of a list is. The numbers are those of `cellKindLabels`.
enum class CellKind {
    Text,
    Integer, ///< of 32 or 64 bits
    Double,
    Bool,
    List,
    Other ///< something only a program can have put there; it is kept as it is
};

CellKind cellKindOf(const QVariant &value);

/// The names of the kinds a user can choose, for instance "整数".
QStringList cellKindLabels();

/// The element a user has typed. The message of a problem tells a user what is expected.
Result<QVariant> cellFromInput(const QString &text, CellKind kind);

/// The element as one of another kind, where that says the same; otherwise the empty one.
QVariant convertedCell(const QVariant &value, CellKind kind);

/// The element as it is copied to a spreadsheet.
QString cellText(const QVariant &value);
