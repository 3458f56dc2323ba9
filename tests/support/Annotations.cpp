#include "tests/support/Annotations.h"

#include <QMetaClassInfo>

QStringList annotationsOf(const QMetaObject &meta)
{
    QStringList annotations;
    for (int i = meta.classInfoOffset(); i < meta.classInfoCount(); ++i) {
        const QMetaClassInfo info = meta.classInfo(i);
        annotations.append(QString::fromUtf8(info.name()) + " = " +
                           QString::fromUtf8(info.value()));
    }
    return annotations;
}

uint propertyFlags(const QMetaObject &meta, int index)
{
    // Word 7 of the header is the place of the property table: name, type and flags of each.
    const uint *const data = meta.d.data;
    return data[data[7] + 3 * static_cast<uint>(index) + 2];
}
