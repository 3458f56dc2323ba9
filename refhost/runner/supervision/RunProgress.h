#pragma once

#include "refhost/runner/rows/RowTally.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <array>
#include <atomic>
#include <cstddef>

/// Progress of one thread that runs steps. Written by this thread only, and read by any other
/// thread or process at any time.
struct alignas(64) ThreadProgress
{
    std::atomic<int> step;      ///< the step that runs: its index plus 1; 0 between two steps
    std::atomic<bool> isEnding; ///< the thread has crashed or called `exit`
    std::atomic<qint64> line;   ///< of the row that runs, counted from 1; 0 without rows
    std::atomic<qint64> moment; ///< odd while a row runs, and another number for each row
    std::atomic<qint64> rows;   ///< rows that are done, including those that failed
    std::atomic<qint64> failed;
    std::atomic<qint64> warnings;
    std::atomic<qint64> failedSteps;

    /// Notes that the row of this line begins.
    void beginRow(qint64 number);

    /// Notes that the row has ended, and adds what came of it.
    void endRow(const RowTally &row);

    /// Returns what came of the rows so far.
    RowTally tally() const;
};

/// Progress of a run: which step each thread runs on which row, what is done, and which temporary
/// files there are. It lies in memory that the process shares with the one that supervises it, so
/// it is still known after a crash. All zeros is the progress of a run that has not begun.
struct RunProgress
{
    static constexpr std::size_t mostThreads = 257;
    static constexpr std::size_t mostSteps = 1 << 20;
    static constexpr std::size_t mostFiles = 2;

    /// Returns the progress of this process.
    static RunProgress &current();

    /// Makes a new one, in memory shared with child processes where the system has that, and makes
    /// it the one of this process. It stays to the end of the process. Null without memory.
    static RunProgress *renew();

    /// Returns the progress of the calling thread. The first call on a thread assigns it, and makes
    /// `runGuarded` note steps there.
    static ThreadProgress &ofThisThread();

    /// Marks the calling thread as the one that ends the process. Async-signal-safe.
    static void markThisThread();

    /// Notes what messages call each step, such as "text.append of libTextOperPlugin.so". `source`
    /// is what they call the task, or the rows it runs on.
    void setSteps(const QString &source, const QStringList &steps);

    /// Returns what messages call the step at `index`; empty for one of those beyond `mostSteps`.
    QString stepName(int index) const;

    /// Notes a file to be removed when the process ends before its work is done.
    void addTemporaryFile(const QByteArray &path);

    /// Removes the files that were noted.
    void removeTemporaryFiles() const;

    /// A text in UTF-8 without NUL; what does not fit is cut off.
    struct Text
    {
        void set(const QByteArray &text);
        QString get() const { return QString::fromUtf8(bytes.data()); }

        std::array<char, 4096> bytes;
    };

    std::array<ThreadProgress, mostThreads> threads;
    std::atomic<int> threadCount;
    std::atomic<qint64> writtenRows; ///< rows whose lines have been written
    std::atomic<qint64> skippedRows; ///< rows at the start that were passed over
    std::atomic<bool> hasRows;       ///< the task runs on rows
    std::atomic<bool> isWriting;     ///< results are being written
    std::atomic<bool> isFinished;    ///< the work is done, the process only has to end
    std::atomic<bool> isSupervised;  ///< another process watches this one
    Text activity; ///< what the process does besides running steps, such as "loading a.so"
    Text source;
    Text output; ///< the file that appears when all rows are done, empty for none
    Text errors; ///< the same for the file of failed rows
    std::array<Text, mostFiles> temporaryFiles;
    std::array<std::atomic<int>, mostSteps> stepNames; ///< index in `names` plus 1
    std::array<Text, 1024> names;
};
