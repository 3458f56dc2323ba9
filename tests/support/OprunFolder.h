#pragma once

#include "tests/support/OprunProcess.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder of its own in which oprun is run as a process, with the files it is to read.
class OprunFolder
{
public:
    using Outcome = OprunOutcome;

    /// `program` is the file of oprun.
    explicit OprunFolder(QString program);

    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

    /// Runs oprun in the folder, with these variables besides those of this process.
    Outcome run(const QStringList &arguments, const QMap<QString, QString> &environment = {}) const;

    /// Runs a line of the shell in the folder; "$OPRUN" stands for oprun in it.
    Outcome runShell(const QString &line) const;

    /// Makes a file of the folder. False when that is not possible.
    bool write(const QString &name, const QByteArray &content) const;

    /// The content of a file of the folder, empty when there is none.
    QByteArray read(const QString &name) const;

private:
    QTemporaryDir m_folder;
    QString m_program;
};
