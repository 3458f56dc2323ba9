#pragma once

#include <QFile>
#include <QString>

/// A file that always says what is just being done, for those who find the process dead.
class Progress
{
public:
    /// Writes to the file at `path`; nowhere when it is empty.
    explicit Progress(const QString &path);

    /// Replaces the content of the file. It is there when this returns, whatever happens next.
    void note(const QString &activity);

private:
    QFile m_file;
};
