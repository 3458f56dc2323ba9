#pragma once

#include <QString>
#include <QVector>

#include <optional>

/// What has been done to a text, for undoing it and doing it again. Positions are in UTF-16 code
/// units.
class TextHistory
{
public:
    /// What an edit took away and put in its place.
    struct Edit
    {
        int position = 0;
        QString removed;
        QString inserted;
    };

    /// Takes in an edit that has been made, and forgets those that are undone. Characters typed one
    /// behind the other are undone together, line by line.
    void add(const Edit &edit);
    void clear();

    /// The edit that takes the last one back, nothing when there is none left.
    std::optional<Edit> undo();
    /// The edit that was taken back last, nothing when there is none left.
    std::optional<Edit> redo();

    /// Whether there is anything to undo.
    bool hasEdits() const { return m_done != 0; }

private:
    bool mergesWithLast(const Edit &edit) const;

    QVector<Edit> m_edits;
    int m_done = 0; ///< of the edits, those that are not undone
};
