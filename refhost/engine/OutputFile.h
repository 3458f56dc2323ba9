#pragma once

#include "refhost/engine/Problem.h"

#include <QByteArray>
#include <QFileDevice>
#include <QString>

#include <memory>
#include <optional>

/// A file that appears whole, with `commit`, or not at all, in the place of one that was there.
/// What is no ordinary file, such as a pipe, is written as it comes, and so is standard output.
class OutputFile
{
public:
    /// `name` is that of a file, or "-" for standard output. A link stands for what it leads to.
    explicit OutputFile(const QString &name);
    ~OutputFile();

    /// How problems call it.
    QString name() const;

    /// Opens it. A problem tells why it cannot be written.
    std::optional<Problem> open();

    /// Adds to it. A problem tells why it cannot be written.
    std::optional<Problem> write(const QByteArray &bytes);

    /// Whether it is standard output.
    bool isStandardOutput() const;

    /// Whether writing failed because whoever read standard output has gone.
    bool readerIsGone() const { return m_readerIsGone; }

    /// Returns the file that is written until `commit`; empty where it has no name, or is none.
    QByteArray temporaryFile() const;

    /// Lets the file appear under its name. Without it there is none, or still the one before.
    std::optional<Problem> commit();

private:
    Q_DISABLE_COPY_MOVE(OutputFile)

    std::optional<Problem> writeToStandardOutput(const QByteArray &bytes);
    std::optional<Problem> writeThrough();
    std::optional<Problem> storeOnDisk();
    Problem unwritable(const QString &reason) const;

    QString m_name;
    std::unique_ptr<QFileDevice> m_file;
    QByteArray m_unwritten; ///< kept until there is enough of it
    bool m_readerIsGone = false;
};
