#pragma once

#include <QStringList>

/// The files that were opened or saved last, remembered in the settings of the user.
class RecentFiles
{
public:
    static constexpr int most = 10;

    /// The files, the last first, but those that are there before those that are gone.
    QStringList files() const;

    /// Puts a file first.
    void add(const QString &path);

    /// Forgets all.
    void clear();
};
