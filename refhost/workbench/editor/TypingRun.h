#pragma once

#include <QString>

/// Says apart what of typing at one place is undone at once: characters that are added one after
/// the other, or removed. A text that is replaced is not undone with what was typed before, so that
/// nothing typed is out of reach of undo.
class TypingRun
{
public:
    /// Whether the change from `before` to `after` is undone with the one before it.
    bool takesIn(const QString &before, const QString &after);

    /// What comes next is undone apart.
    void end() { m_kind = Kind::None; }

private:
    enum class Kind {
        None,
        Adding,
        Removing,
        Replacing ///< several characters went; what is typed next takes their place
    };

    Kind m_kind = Kind::None;
};
