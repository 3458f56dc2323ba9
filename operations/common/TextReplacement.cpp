#include "operations/common/TextReplacement.h"

#include "operations/common/Concatenation.h"
#include "operations/common/TextSearch.h"

#include <QVarLengthArray>

#include <algorithm>

namespace {

/// Goes through the occurrences, one behind the other.
class Occurrences
{
public:
    Occurrences(const QString &text, const QString &search, Qt::CaseSensitivity sensitivity)
        : m_search(text, search, sensitivity)
        , m_step(std::max(1, search.size()))
    {
    }

    /// The next one behind the one at `position`, -1 behind the last.
    int nextBehind(int position) { return m_search.next(position + m_step); }

    int first() { return m_search.next(0); }

private:
    TextSearch m_search;
    int m_step;
};

/// Where the occurrences are, and how many.
struct Places
{
    QVarLengthArray<int, 256> known; ///< the first ones
    int count = 0;                   ///< of all
};

/// Finds all, and keeps as many as memory should be taken for.
Places findPlaces(Occurrences occurrences)
{
    constexpr int mostKnown = 1 << 22;
    Places places;
    for (int i = occurrences.first(); i >= 0; i = occurrences.nextBehind(i)) {
        if (places.count < mostKnown)
            places.known.append(i);
        ++places.count;
    }
    return places;
}

/// Writes a text over with some of its places replaced, which are given from left to right.
class Writer
{
public:
    Writer(const QString &text, int replacedSize, const QString &replacement, QString *result)
        : m_text(text)
        , m_replacedSize(replacedSize)
        , m_replacement(replacement)
        , m_end(result->data())
    {
    }

    void replace(int position)
    {
        append(m_text.constData() + m_rest, position - m_rest);
        append(m_replacement.constData(), m_replacement.size());
        m_rest = position + m_replacedSize;
    }

    void finish() { append(m_text.constData() + m_rest, m_text.size() - m_rest); }

private:
    /// Most pieces are short, and then a call costs more than the copying.
    void append(const QChar *begin, int size)
    {
        constexpr int shortPiece = 8;
        if (size > shortPiece) {
            m_end = std::copy_n(begin, size, m_end);
            return;
        }
        for (int i = 0; i < size; ++i)
            *m_end++ = begin[i];
    }

    const QString &m_text;
    int m_replacedSize;
    const QString &m_replacement;
    QChar *m_end;
    int m_rest = 0; ///< where what is not written yet begins
};

} // namespace

QString replacedText(const QString &text, const QString &search, const QString &replacement,
                     Qt::CaseSensitivity sensitivity)
{
    const Occurrences occurrences(text, search, sensitivity);
    const Places places = findPlaces(occurrences);
    if (places.count == 0 || (search.isEmpty() && replacement.isEmpty()))
        return text;
    const qint64 growth = qint64(replacement.size() - search.size()) * places.count;
    QString result = unwrittenText(text.size() + growth);
    Writer writer(text, search.size(), replacement, &result);
    for (const int position : places.known)
        writer.replace(position);
    if (places.count > places.known.size()) {
        Occurrences others(occurrences);
        for (int i = others.nextBehind(places.known.last()); i >= 0; i = others.nextBehind(i))
            writer.replace(i);
    }
    writer.finish();
    return result;
}
