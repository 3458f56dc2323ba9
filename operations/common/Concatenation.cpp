#include "operations/common/Concatenation.h"

#include <algorithm>
#include <limits>
#include <new>

QString unwrittenText(qint64 size)
{
    if (size > std::numeric_limits<int>::max())
        throw std::bad_alloc();
    return QString(static_cast<int>(size), Qt::Uninitialized);
}

QString concatenated(std::initializer_list<QStringView> pieces)
{
    qint64 size = 0;
    bool isNull = true;
    for (const QStringView piece : pieces) {
        size += piece.size();
        isNull = isNull && piece.isNull();
    }
    if (isNull)
        return {};
    QString text = unwrittenText(size);
    QChar *end = text.data();
    for (const QStringView piece : pieces)
        end = std::copy(piece.begin(), piece.end(), end);
    return text;
}
