#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// A command that can do no harm: it gets a limited time and address space, and whatever it started
/// ends with it.
class LimitedProcess : private QProcess
{
public:
    enum class End { Success, Failure, TimedOut };

    /// `logFile` receives what the command prints; without one it is thrown away.
    LimitedProcess(const QString &folder, const QString &logFile);

    /// Runs the command to its end. The first of the words is the program.
    End run(const QStringList &command, int milliseconds);

    /// Sets a limit on the address space of the command, in bytes.
    void limitMemory(qint64 bytes) { m_bytes = bytes; }

protected:
    void setupChildProcess() override;

private:
    qint64 m_bytes = 0;
    int m_seconds = 0;
};
