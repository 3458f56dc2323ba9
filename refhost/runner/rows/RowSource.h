#pragma once

#include "refhost/engine/Problem.h"
#include "refhost/runner/rows/RowBatch.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>

class Interruption;

/// Reads the lines of a file, or of standard input, batch by batch: what is there is handed over
/// without waiting for more.
class RowSource
{
public:
    /// About the most bytes a row may have.
    static constexpr int longestRow = 256 * 1024 * 1024;

    /// Reads the file called `name`, or standard input for "-". A line of more than `limit` bytes
    /// is passed over as soon as a block of it is too much.
    ///
    /// `firstLine` is the number of its first line.
    explicit RowSource(const QString &name, qint64 firstLine = 1, int limit = longestRow);

    /// How problems call the source.
    QString name() const;

    /// Opens it. A problem tells why it cannot be read.
    std::optional<Problem> open();

    /// Waits for the next row, or for as much of it as is read at once, and returns what has been
    /// read of the input from there on, which `next` will return, too. Blank lines count as rows if
    /// `hasBlankRows`. Returns nothing if the interruption ends the waiting, or with a problem.
    std::optional<QByteArray> head(bool hasBlankRows, const Interruption &interruption);

    /// Passes over up to `count` rows, before the first call of `next`. Returns how many there
    /// were.
    qint64 skip(qint64 count, bool hasBlankRows, const Interruption &interruption);

    /// The next batch; nothing at the end, when the interruption ends the waiting for it, or with a
    /// problem.
    std::optional<RowBatch> next(const Interruption &interruption);

    /// Lets go of the file, so that another can take its place.
    void close() { m_file.close(); }

    /// Why reading ended before the end, if it did.
    const std::optional<Problem> &problem() const { return m_problem; }

private:
    Q_DISABLE_COPY_MOVE(RowSource)

    Problem unreadable(const QString &reason) const;
    bool readBlock(const Interruption &interruption);
    std::optional<RowBatch> takeLines();
    std::optional<RowBatch> takeRest();
    RowBatch batchOf(const QByteArray &lines);
    void keepForLater();
    void putBack(const RowBatch &batch, int begin);

    QString m_name;
    int m_limit;
    QFile m_file;
    QByteArray m_block; ///< read, and not looked at yet
    QByteArray m_rest;  ///< the begin of the line that goes on in the next block
    bool m_atEnd = false;
    bool m_passesOver = false; ///< within a line that is too long
    bool m_isAtStart = true;   ///< where a byte order mark may stand
    qint64 m_number = 0;
    qint64 m_line;
    std::optional<Problem> m_problem;
};
