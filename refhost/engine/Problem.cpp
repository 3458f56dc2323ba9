#include "refhost/engine/Problem.h"

#include "refhost/engine/EngineText.h"

QString Problem::toString() const
{
    QString text = file;
    for (const QString &part : {place, message}) {
        if (text.isEmpty())
            text = part;
        else if (!part.isEmpty())
            text = EngineText::tr("%1: %2").arg(text, part);
    }
    return text;
}

Problem emptyFileName(Problem::Reason reason)
{
    return {reason, {}, {}, EngineText::tr("an empty file name; expected a file")};
}
