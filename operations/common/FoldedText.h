#pragma once

#include <QChar>
#include <QStringView>
#include <QVarLengthArray>

/// A text as Qt compares it when letter case does not count: unit by unit, but for the second half
/// of a surrogate pair, which stands for the whole pair. A view: the text has to outlive it.
class FoldedText
{
public:
    /// Units that count as the same: 'k', 'K' and the kelvin sign.
    using Variants = QVarLengthArray<ushort, 8>;

    explicit FoldedText(QStringView text);

    /// The number of UTF-16 code units.
    int size() const { return static_cast<int>(m_text.size()); }

    /// What the unit at `index` counts as. Two texts are equal ignoring case when all their units
    /// count as the same.
    uint operator[](int index) const
    {
        const QChar unit = m_text[index];
        return isSecondHalf(index) ? foldedPair(m_text[index - 1], unit)
                                   : m_folding[unit.unicode()];
    }

    /// Whether the unit at `index` is the second half of a surrogate pair.
    bool isSecondHalf(int index) const
    {
        return m_text[index].isLowSurrogate() && index > 0 && m_text[index - 1].isHighSurrogate();
    }

    /// All units that count as the same as `unit` where they stand alone, `unit` among them.
    static Variants variantsOf(QChar unit);

private:
    static uint foldedPair(QChar high, QChar low);

    QStringView m_text;
    const ushort *m_folding;
};
