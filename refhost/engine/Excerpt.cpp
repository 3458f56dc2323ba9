#include "refhost/engine/Excerpt.h"

#include "refhost/engine/EngineText.h"

namespace {

/// Returns the first `size` code units of a longer text, or one less, so that no pair is cut.
QString head(const QString &text, int size)
{
    return text.left(text.at(size - 1).isHighSurrogate() ? size - 1 : size);
}

/// Returns the last `size` code units of a longer text, or one less.
QString tail(const QString &text, int size)
{
    return text.right(text.at(text.size() - size).isLowSurrogate() ? size - 1 : size);
}

} // namespace

QString beginningOf(const QString &text)
{
    return text.size() <= longestExcerpt ? text : head(text, longestExcerpt);
}

QString excerpt(const QString &text)
{
    if (text.size() <= longestExcerpt)
        return text;
    return EngineText::tr("%1… (%2 characters)")
        .arg(beginningOf(text), QString::number(text.size()));
}

QString lineExcerpt(const QString &line)
{
    constexpr int longestEnd = 40;
    if (line.size() <= longestExcerpt)
        return line;
    return EngineText::tr("%1… (%2 characters) …%3")
        .arg(head(line, longestExcerpt - longestEnd), QString::number(line.size()),
             tail(line, longestEnd));
}
