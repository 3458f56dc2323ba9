#include "refhost/workbench/variables/TextWalk.h"

namespace {

constexpr int longWord = 1 << 20;

bool isWordUnit(QChar unit)
{
    return unit.isLetterOrNumber() || unit == QLatin1Char('_') || unit.isSurrogate();
}

bool isPairAt(const QString &text, int position)
{
    return position >= 0 && position + 1 < text.size() && text.at(position).isHighSurrogate() &&
           text.at(position + 1).isLowSurrogate();
}

/// Over units that are in words, or are not, up to `bound`.
int skipOn(const QString &text, int position, bool words, int bound)
{
    while (position < bound && isWordUnit(text.at(position)) == words)
        ++position;
    return position;
}

int skipBack(const QString &text, int position, bool words, int bound)
{
    while (position > bound && isWordUnit(text.at(position - 1)) == words)
        --position;
    return position;
}

} // namespace

int nextPosition(const QString &text, int position)
{
    if (position >= text.size())
        return text.size();
    return position + (isPairAt(text, position) ? 2 : 1);
}

int previousPosition(const QString &text, int position)
{
    if (position <= 0)
        return 0;
    return position - (isPairAt(text, position - 2) ? 2 : 1);
}

int nextWord(const QString &text, int position)
{
    const int bound = qMin(text.size(), position + longWord);
    return skipOn(text, skipOn(text, position, true, bound), false, bound);
}

int previousWord(const QString &text, int position)
{
    const int bound = qMax(0, position - longWord);
    return skipBack(text, skipBack(text, position, false, bound), true, bound);
}

int wordStart(const QString &text, int position)
{
    return skipBack(text, position, true, qMax(0, position - longWord));
}

int wordEnd(const QString &text, int position)
{
    return skipOn(text, position, true, qMin(text.size(), position + longWord));
}
