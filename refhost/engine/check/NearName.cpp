#include "refhost/engine/check/NearName.h"

#include <QVector>

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace {

using Difference = NearName::Difference;

/// How many letters have to be put in, left out, replaced or swapped with their neighbour to make
/// one name the other.
int editDistance(const QString &left, const QString &right)
{
    QVector<int> beforeLast;
    QVector<int> last(right.size() + 1);
    std::iota(last.begin(), last.end(), 0);
    for (int i = 1; i <= left.size(); ++i) {
        QVector<int> row{i};
        for (int j = 1; j <= right.size(); ++j) {
            const bool equal = left.at(i - 1) == right.at(j - 1);
            int edits =
                std::min({last.at(j) + 1, row.last() + 1, last.at(j - 1) + (equal ? 0 : 1)});
            const bool swapped = i > 1 && j > 1 && left.at(i - 1) == right.at(j - 2) &&
                                 left.at(i - 2) == right.at(j - 1);
            if (swapped)
                edits = std::min(edits, beforeLast.at(j - 2) + 1);
            row.append(edits);
        }
        beforeLast = last;
        last = row;
    }
    return last.last();
}

/// The most edits by which names of this size may differ.
int tolerance(int size)
{
    return std::min(size / 3, 3);
}

QString nearestByLetters(const QString &name, const QStringList &declared)
{
    constexpr int longestName = 100; // nobody mistypes a whole text
    QString nearest;
    int fewest = 4;
    if (name.size() > longestName)
        return nearest;
    for (const QString &candidate : declared) {
        const int allowed = tolerance(std::max(name.size(), candidate.size()));
        if (std::abs(name.size() - candidate.size()) > allowed)
            continue;
        const int edits = editDistance(name.toCaseFolded(), candidate.toCaseFolded());
        if (edits <= allowed && edits < fewest) {
            fewest = edits;
            nearest = candidate;
        }
    }
    return nearest;
}

/// Letters of these scripts stand together without a space, so only Latin ones make a longer word.
bool continuesWord(QChar letter)
{
    return letter.unicode() < 0x250 && (letter.isLetterOrNumber() || letter == QLatin1Char('_'));
}

bool beginsWithWord(QStringView text, const QString &word)
{
    if (word.isEmpty() || !text.startsWith(word))
        return false;
    return text.size() == word.size() || !continuesWord(word.back()) ||
           !continuesWord(text.at(word.size()));
}

QString withoutBraces(const QString &name)
{
    const bool braced = name.startsWith(QLatin1Char('{')) && name.endsWith(QLatin1Char('}'));
    return braced ? name.mid(1, name.size() - 2) : name;
}

bool differsOnlyIn(Difference difference, const QString &name, const QString &candidate)
{
    switch (difference) {
    case Difference::Space:
        return name.trimmed() == candidate.trimmed();
    case Difference::Braces:
        return withoutBraces(name) == candidate;
    default:
        return name.trimmed().compare(candidate.trimmed(), Qt::CaseInsensitive) == 0;
    }
}

} // namespace

NearName nearName(const QString &name, const QStringList &declared)
{
    for (const auto difference : {Difference::Space, Difference::Braces, Difference::Case}) {
        for (const QString &candidate : declared) {
            if (differsOnlyIn(difference, name, candidate))
                return {difference, candidate};
        }
    }
    const int size = leadingNameSize(name, declared);
    const bool endsClearly = size > 0 && !name.at(size).isLetterOrNumber();
    const QString nearest = endsClearly ? QString() : nearestByLetters(name, declared);
    if (!nearest.isEmpty())
        return {Difference::Letters, nearest};
    return size > 0 ? NearName{Difference::Tail, name.left(size)} : NearName();
}

int leadingNameSize(QStringView text, const QStringList &declared)
{
    int longest = 0;
    for (const QString &name : declared) {
        if (beginsWithWord(text, name))
            longest = std::max(longest, name.size());
    }
    return longest;
}
