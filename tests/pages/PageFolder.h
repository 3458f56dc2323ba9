#pragma once

#include "tests/support/OprunProcess.h"

#include <QString>
#include <QTemporaryDir>

/// The folder in which the commands of one page are typed, one after the other: it looks like that
/// of the project after a build, with the programs of this build, but nothing typed there does any
/// harm.
class PageFolder
{
public:
    /// `page` is the name of the page without its folder. What a reader would have of his own
    /// stands in the folder of that name in tests/pages/files, if there is one.
    explicit PageFolder(const QString &page);

    /// What is wrong with the folder, empty when nothing is.
    QString problem() const { return m_problem; }

    /// Types a command. Both outputs are in `out`, in the order in which they were printed.
    OprunOutcome type(const QString &command);

    /// Whether the folder has this file.
    bool has(const QString &name) const;

    /// Makes a file.
    void write(const QString &name, const QString &content);

private:
    QString path(const QString &name) const { return m_folder.filePath("project/" + name); }
    void copy(const QString &from, const QString &to);
    void link(const QString &file, const QString &name);
    void fill(const QString &page);
    void linkPrograms();
    void writeProgram(const QString &name, const QString &script);

    QTemporaryDir m_folder;
    QString m_problem;
    int m_status = 0; ///< of the command typed last
};
