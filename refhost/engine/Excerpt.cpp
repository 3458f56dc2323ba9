#include "refhost/engine/Excerpt.h"

#include "refhost/engine/EngineText.h"

QString beginningOf(const QString &text)
{
    if (text.size() <= longestExcerpt)
        return text;
    const bool cutsPair = text.at(longestExcerpt - 1).isHighSurrogate();
    return text.left(cutsPair ? longestExcerpt - 1 : longestExcerpt);
}

QString excerpt(const QString &text)
{
    if (text.size() <= longestExcerpt)
        return text;
    return EngineText::tr("%1… (%2 characters)")
        .arg(beginningOf(text), QString::number(text.size()));
}
