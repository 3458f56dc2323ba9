#include "refhost/engine/NameIndex.h"

#include "refhost/engine/EditDistance.h"
#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"

#include <QtAlgorithms>

#include <algorithm>
#include <cstdlib>

namespace {

using Difference = NearName::Difference;

/// The most edits by which names of this size may differ.
int tolerance(int size)
{
    return std::min(size / 3, 3);
}

/// A bit for each letter in the text.
quint64 lettersOf(const QString &text)
{
    quint64 letters = 0;
    for (const QChar letter : text)
        letters |= quint64(1) << (letter.unicode() % 64);
    return letters;
}

/// At least so many edits make one set the other: each takes a letter away, puts one in, or both.
int fewestEdits(quint64 left, quint64 right)
{
    return static_cast<int>(qPopulationCount(left ^ right) + 1) / 2;
}

/// Letters of these scripts stand together without a space, so only Latin ones make a longer word.
bool continuesWord(QChar letter)
{
    return letter.unicode() < 0x250 && (letter.isLetterOrNumber() || letter == QLatin1Char('_'));
}

bool beginsWithWord(QStringView text, const QString &word)
{
    if (!text.startsWith(word))
        return false;
    return text.size() == word.size() || !continuesWord(word.back()) ||
           !continuesWord(text.at(word.size()));
}

/// Returns the size of the sections that both names begin with, with the dot behind them.
int commonSections(const QString &left, const QString &right)
{
    const auto isSame = [](QChar one, QChar other) {
        return one.toCaseFolded() == other.toCaseFolded();
    };
    const auto begin = std::mismatch(left.begin(), left.end(), right.begin(), right.end(), isSame);
    const int same = static_cast<int>(begin.first - left.begin());
    return left.left(same).lastIndexOf(QLatin1Char('.')) + 1;
}

QString lastSection(const QString &name)
{
    return name.mid(name.lastIndexOf(QLatin1Char('.')) + 1);
}

bool isBraced(const QString &name)
{
    return name.startsWith(QLatin1Char('{')) && name.endsWith(QLatin1Char('}'));
}

} // namespace

NameIndex::NameIndex(const QStringList &declared)
    : m_names(declared)
{
    for (const QString &name : declared) {
        const QString trimmed = name.trimmed();
        const QString small = trimmed.toCaseFolded();
        if (!m_trimmed.contains(trimmed))
            m_trimmed.insert(trimmed, name);
        if (!m_small.contains(small))
            m_small.insert(small, name);
        if (!name.isEmpty())
            m_beginnings[name.front()].append(name);
        const QString folded = name.toCaseFolded();
        m_folded.append({folded, lettersOf(folded)});
    }
}

NearName NameIndex::nearest(const QString &name) const
{
    const auto known = m_answers.constFind(name);
    if (known != m_answers.cend())
        return *known;
    return *m_answers.insert(name, search(name));
}

NearName NameIndex::search(const QString &name) const
{
    const QString trimmed = name.trimmed();
    if (m_trimmed.contains(trimmed))
        return {Difference::Space, m_trimmed.value(trimmed)};
    const QString bare = name.mid(1, name.size() - 2);
    if (isBraced(name) && m_names.contains(bare))
        return {Difference::Braces, bare};
    const QString small = trimmed.toCaseFolded();
    if (m_small.contains(small))
        return {Difference::Case, m_small.value(small)};
    const int size = leadingSize(name);
    const bool endsClearly = size > 0 && !name.at(size).isLetterOrNumber();
    const QString nearest = endsClearly ? QString() : nearestByLetters(name);
    if (!nearest.isEmpty())
        return {Difference::Letters, nearest};
    return size > 0 ? NearName{Difference::Tail, name.left(size)} : NearName();
}

QString NameIndex::nearestByLetters(const QString &name) const
{
    constexpr int longestName = 100; // nobody mistypes a whole text
    if (name.size() > longestName)
        return {};
    const QString folded = name.toCaseFolded();
    const quint64 letters = lettersOf(folded);
    QString nearest;
    int wanted =
        3; // the first of the nearest is looked for, so each has to be nearer than the last
    for (int i = 0; i < m_folded.size() && wanted > 0; ++i) {
        const Folded &candidate = m_folded.at(i);
        const int most =
            std::min(wanted, tolerance(std::max(folded.size(), candidate.text.size())));
        if (std::abs(folded.size() - candidate.text.size()) > most ||
            fewestEdits(letters, candidate.letters) > most)
            continue;
        const int edits = editDistance(folded, candidate.text, most);
        if (edits <= most) {
            wanted = edits - 1;
            nearest = m_names.at(i);
        }
    }
    return nearest;
}

int NameIndex::leadingSize(QStringView text) const
{
    int longest = 0;
    const QStringList names = text.isEmpty() ? QStringList() : m_beginnings.value(text.front());
    for (const QString &name : names) {
        if (beginsWithWord(text, name))
            longest = std::max(longest, name.size());
    }
    return longest;
}

QString nearestName(const QString &name, const QStringList &known)
{
    const QString near = NameIndex(known).nearest(name).name;
    if (!near.isEmpty()) {
        const int same = commonSections(name, near);
        const NameIndex rest({near.mid(same)});
        return rest.nearest(name.mid(same)).name.isEmpty() ? QString() : near;
    }
    if (name.contains(QLatin1Char('.')))
        return {};
    QStringList sections;
    for (const QString &candidate : known)
        sections.append(lastSection(candidate));
    const QString section = NameIndex(sections).nearest(name).name;
    return section.isEmpty() ? QString() : known.at(sections.indexOf(section));
}

QString withSuggestion(const QString &message, const QString &near)
{
    return near.isEmpty() ? message
                          : EngineText::tr("%1 (did you mean %2?)").arg(message, jsonText(near));
}
