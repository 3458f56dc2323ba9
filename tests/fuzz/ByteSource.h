#pragma once

#include <QChar>
#include <QString>

#include <cstddef>
#include <cstdint>

/// Makes decisions from a row of bytes, as a fuzzer or a random generator hands them out. When the
/// bytes have run out, every decision is 0. A view: the bytes have to outlive it.
class ByteSource
{
public:
    ByteSource(const std::uint8_t *bytes, std::size_t size)
        : m_next(bytes)
        , m_end(bytes + size)
    {
    }

    bool isEmpty() const { return m_next == m_end; }

    int takeByte() { return isEmpty() ? 0 : *m_next++; }

    /// A number from 0 up to but not including `bound`, which is at most 256.
    int takeBelow(int bound) { return takeByte() % bound; }

    bool takeBool() { return takeBelow(2) != 0; }

    template <typename T, std::size_t size>
    const T &takeOneOf(const T (&choices)[size])
    {
        static_assert(size <= 256);
        return choices[takeBelow(static_cast<int>(size))];
    }

    /// A text of at most `mostUnits` units: any units, the units that matter to searching and to
    /// letter case, and repetitions of what was there before.
    QString takeText(int mostUnits);

private:
    QChar takeUnit();

    const std::uint8_t *m_next;
    const std::uint8_t *m_end;
};
