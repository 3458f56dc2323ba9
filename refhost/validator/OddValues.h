#pragma once

#include <QList>
#include <QVariant>

class QMetaProperty;

/// Values of the property's type that an editor or an old task may well set, far from what the
/// operation can use: out of range, empty, long, with characters of all kinds.
QList<QVariant> oddValues(const QMetaProperty &property);
