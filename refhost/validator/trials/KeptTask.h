#pragma once

#include <QFile>
#include <QString>

class CheckContext;
class Task;

/// A task file that shows what is wrong with an operation. It is written before the task runs, so
/// that it is there when that ends the program. It is removed when the program ends because nobody
/// waits for its outcome any more.
class KeptTask
{
public:
    /// The file is in the folder for such files, named after the check, the plug-in, the seed and
    /// the operation.
    KeptTask(const CheckContext &context, const QString &checkId, const QString &typeId);
    ~KeptTask();

    /// Why the file cannot be written, empty when it can.
    QString problem() const;

    /// Replaces the task in the file.
    void write(const Task &task);

    /// Removes the file: nothing was wrong.
    void discard();

    /// The command line that runs the task.
    const QString &commandLine() const { return m_commandLine; }

private:
    Q_DISABLE_COPY_MOVE(KeptTask)

    QFile m_file;
    QString m_commandLine;
};
