#include "Occurrences.h"

#include <QStringMatcher>

int occurrences(const QString &text, const QString &searched, Qt::CaseSensitivity sensitivity)
{
    if (searched.isEmpty())
        return 0;
    const QStringMatcher matcher(searched, sensitivity);
    int count = 0;
    for (int at = matcher.indexIn(text); at >= 0; at = matcher.indexIn(text, at + searched.size()))
        ++count;
    return count;
}
