#include "refhost/engine/Problem.h"

#include <QStringList>

QString Problem::toString() const
{
    QStringList parts;
    for (const QString &part : {file, place, message}) {
        if (!part.isEmpty())
            parts.append(part);
    }
    return parts.join(QLatin1String(": "));
}
