#pragma once

#include <QMetaObject>
#include <QStringList>

/// The class info of a class's own as "key = value", in order.
QStringList annotationsOf(const QMetaObject &meta);

/// The flag word of the class's own property at `index`, as the meta-object compiler wrote it.
uint propertyFlags(const QMetaObject &meta, int index);
