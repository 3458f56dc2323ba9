#pragma once

#include <QString>

#include <vector>

/// Where the rows of a text begin when it is shown in a given width. A row ends after a line feed,
/// or where the next character has no room; a surrogate pair is never taken apart. Only every so
/// many rows are remembered, so that any text is divided fast and in little memory.
///
/// All positions and lengths are in UTF-16 code units. The text given to the functions has to be
/// the one that was divided last.
class TextRows
{
public:
    /// The widths of a row, of a letter and of a wide character such as a Chinese one, in whatever
    /// unit.
    struct Widths
    {
        int row = 80;
        int narrow = 1;
        int wide = 2;

        bool operator==(const Widths &other) const
        {
            return row == other.row && narrow == other.narrow && wide == other.wide;
        }
        /// As many code units as a row has at most.
        int mostUnits() const { return row / narrow + 2; }
    };

    /// Divides the text anew. What is before `from` has to be as it was, and so the widths; 0 for
    /// everything.
    void divide(const QString &text, const Widths &widths, int from = 0);

    /// At least 1: an empty text is one empty row, and so is what follows a last line feed.
    int count() const { return m_count; }
    /// The number of characters, a surrogate pair being one.
    int characters() const { return m_size - m_pairs; }

    /// Where a row begins. The row has to be there.
    int start(const QString &text, int row) const;
    /// Where the row that begins at `start` ends, behind its line feed.
    int end(const QString &text, int start) const;
    /// The row that has the position in it. At the seam of two rows the second.
    int rowAt(const QString &text, int position) const;
    /// The number of line feeds before the position.
    int lineAt(const QString &text, int position) const;

private:
    /// What is known at the beginning of some row.
    struct Anchor
    {
        int position = 0;
        int lines = 0; ///< line feeds before it
        int pairs = 0; ///< surrogate pairs before it
    };

    const Anchor &anchorBefore(int position) const;

    std::vector<Anchor> m_anchors{Anchor()};
    Widths m_widths;
    int m_count = 1;
    int m_size = 0;
    int m_pairs = 0;
};
