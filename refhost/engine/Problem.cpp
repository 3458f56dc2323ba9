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

Problem emptyFileName(Problem::Reason reason)
{
    return {reason, {}, {}, QStringLiteral("an empty file name; expected a file")};
}
