#include "tests/mutation/LimitedProcess.h"

#include <csignal>

#include <sys/resource.h>
#include <unistd.h>

namespace {

template <typename Resource>
void limit(Resource resource, rlim_t value)
{
    const rlimit both{value, value};
    ::setrlimit(resource, &both);
}

} // namespace

LimitedProcess::LimitedProcess(const QString &folder, const QString &logFile)
{
    setWorkingDirectory(folder);
    setStandardInputFile(QProcess::nullDevice());
    setProcessChannelMode(QProcess::MergedChannels);
    setStandardOutputFile(logFile.isEmpty() ? QProcess::nullDevice() : logFile);
}

LimitedProcess::End LimitedProcess::run(const QStringList &command, int milliseconds)
{
    m_seconds = milliseconds / 1000 + 1;
    start(command.first(), command.mid(1));
    if (!waitForStarted())
        return End::Failure;
    const auto group = static_cast<pid_t>(processId());
    if (!waitForFinished(milliseconds)) {
        ::kill(-group, SIGKILL);
        waitForFinished();
        return End::TimedOut;
    }
    const bool succeeded = exitStatus() == QProcess::NormalExit && exitCode() == 0;
    return succeeded ? End::Success : End::Failure;
}

void LimitedProcess::setupChildProcess()
{
    // A group of its own, to be ended as one. What leaves the group meets the processor time limit.
    ::setpgid(0, 0);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, static_cast<rlim_t>(m_seconds));
    if (m_bytes > 0)
        limit(RLIMIT_AS, static_cast<rlim_t>(m_bytes));
}
