#pragma once

#include <QList>
#include <QRandomGenerator>
#include <QString>
#include <QVariant>

/// Random values such as tasks may hold, many of them strange. The same seed gives the same values
/// on every machine. All of them survive being written to a task file and read again.
class RandomSource
{
public:
    /// `theme` makes sources of the same seed differ.
    RandomSource(quint32 seed, const QString &theme);

    /// A number from 0 to `end` - 1.
    int below(int end) { return m_random.bounded(end); }
    /// True once in `times`.
    bool onceIn(int times) { return below(times) == 0; }

    /// One of the elements; there has to be one.
    template <typename T>
    T oneOf(const QList<T> &elements)
    {
        return elements.at(below(elements.size()));
    }

    /// A text: empty, ordinary, number-like, long, or of characters that are hard to handle.
    QString text();
    /// A text that may stand for a number, or nearly.
    QString numberText();
    int integer();
    double real();
    /// A list of texts, numbers, truth values and lists.
    QVariantList list();
    /// A list of rows of different lengths.
    QVariantList table();

private:
    QString strangeText();
    QVariant element(int depth);
    QVariantList nested();

    QRandomGenerator m_random;
};
