#pragma once

#include <QString>
#include <QStringList>

/// A command that a page tells its reader to type.
struct PageCommand
{
    int line = 0;             ///< where it stands in the page, counted from 1
    QString text;             ///< as it is written; lines that a backslash joins are still several
    bool inFence = false;     ///< whether its block is fenced, not indented
    bool showsOutput = false; ///< whether the page shows what is printed, be it nothing
    QStringList shown;        ///< the lines the page shows below it

    /// The command in one line and without the comment behind it, as tables name it.
    QString plainText() const;
};
