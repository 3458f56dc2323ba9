#pragma once

#include <QString>
#include <QVector>

/// Looks for a text in another one, a slice at a time, in time that grows with the two lengths and
/// no faster, however repetitive they are. Compares code units exactly. Goes round the end once.
class SlicedSearch
{
public:
    enum class Direction { Forward, Backward };
    enum class State { Searching, Found, NotFound };

    /// Finds the first match that begins at or after `from`, backwards the last that ends at or
    /// before it, and then the rest of the text.
    SlicedSearch(const QString &text, const QString &sought, int from, Direction direction);

    /// Looks at `units` more code units at most.
    State advance(int units);

    /// Where the match begins, once it is found.
    int position() const { return m_match; }
    /// Whether the search has gone round the end.
    bool hasWrapped() const { return m_hasWrapped; }

private:
    ushort unitAt(int i) const;
    ushort soughtAt(int i) const;
    void wrap();

    QString m_text;
    QString m_sought;
    Direction m_direction;
    QVector<int> m_fallback; ///< how much still matches when one more unit does not
    int m_from = 0;          ///< where the first round began, as it is counted in the direction
    int m_next = 0;          ///< counted in the direction
    int m_matched = 0;
    int m_match = -1;
    bool m_hasWrapped = false;
    State m_state = State::Searching;
};
