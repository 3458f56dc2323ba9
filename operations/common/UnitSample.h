#pragma once

#include <QStringView>

#include <array>

/// How often the units of a text occur in a sample of it, those with the same low byte counted
/// together; there is none of a short text.
class UnitSample
{
public:
    explicit UnitSample(QStringView text)
    {
        constexpr int smallestText = 1024;
        if (text.size() < smallestText)
            return;
        m_counts.fill(0);
        m_isTaken = true;
        constexpr int stretches = 8;
        constexpr int stretchSize = 32;
        for (int i = 0; i < stretches; ++i) {
            for (const QChar unit : text.mid(text.size() / stretches * i, stretchSize))
                ++m_counts[unit.cell()];
        }
    }

    /// How often `unit` and those with its low byte were met.
    int count(ushort unit) const { return m_isTaken ? m_counts[unit & 0xff] : 0; }

private:
    bool m_isTaken = false;
    std::array<int, 256> m_counts; ///< left as it is, when nothing is counted
};
