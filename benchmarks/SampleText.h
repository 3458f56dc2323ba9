#pragma once

#include "benchmarks/Alphabet.h"

#include <QString>

#include <random>

/// Makes the texts that operations are measured on. The same seed gives the same texts, on every
/// system; two texts of one object differ. Sizes are in UTF-16 code units and are kept exactly.
class SampleText
{
public:
    SampleText(Alphabet alphabet, quint32 seed);

    /// Ordinary text: sentences of words with the letters' usual frequencies, or Chinese ones. It
    /// neither begins nor ends with white space.
    QString text(int size);

    /// Letters only, in lower case.
    QString letters(int size);

    /// Ordinary text in which `inserted` stands over the last units of every `distance` units.
    QString textWith(const QString &inserted, int distance, int size);

    /// A search text of three units that ordinary text never contains, though it is full of each of
    /// them.
    QString absentText() const;

    /// A unit that ordinary text does not contain, to separate pieces with.
    QString separator() const;

    /// A separator of three units, the first of which is frequent in the text.
    QString longSeparator() const;

    /// The same letter again and again.
    QString repetition(int size) const;

    /// The repeated letter, but another one at `position`.
    QString repetitionBut(int position, int size) const;

private:
    int below(int limit);
    QChar letter();
    void appendWord(QString &text);
    void appendSentence(QString &text);

    Alphabet m_alphabet;
    std::mt19937 m_random;
};
