#include "refhost/validator/trials/ChildCall.h"

#include "refhost/validator/ParentProcess.h"

#ifdef Q_OS_UNIX
#    include <array>
#    include <cerrno>
#    include <csignal>
#    include <fcntl.h>
#    include <sys/wait.h>
#    include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#    include <sys/prctl.h>
#endif

#ifdef Q_OS_UNIX

ChildCall::ChildCall(const std::function<QByteArray()> &call)
{
    int ends[2];
    if (pipe(ends) != 0)
        return;
    for (const int end : ends)
        fcntl(end, F_SETFD, FD_CLOEXEC);
    const pid_t process = fork();
    if (process == 0) {
#    ifdef Q_OS_LINUX
        prctl(PR_SET_PDEATHSIG, SIGKILL);
#    endif
        const QByteArray result = call();
        // The last byte tells that nothing is missing.
        writeToParent(ends[1], result + '\n');
        _exit(0);
    }
    close(ends[1]);
    m_input = ends[0];
    m_process = process;
}

ChildCall::~ChildCall()
{
    if (m_input >= 0)
        close(m_input);
    if (m_process <= 0)
        return;
    kill(static_cast<pid_t>(m_process), SIGKILL);
    waitpid(static_cast<pid_t>(m_process), nullptr, 0);
}

bool ChildCall::isPossible()
{
    return true;
}

std::optional<QByteArray> ChildCall::result()
{
    std::array<char, 4096> buffer;
    QByteArray bytes;
    ssize_t count = 0;
    while ((count = read(m_input, buffer.data(), buffer.size())) > 0 ||
           (count < 0 && errno == EINTR)) {
        if (count > 0)
            bytes.append(buffer.data(), static_cast<int>(count));
    }
    if (!bytes.endsWith('\n'))
        return std::nullopt;
    bytes.chop(1);
    return bytes;
}

#else

ChildCall::ChildCall(const std::function<QByteArray()> &) {}
ChildCall::~ChildCall() = default;

bool ChildCall::isPossible()
{
    return false;
}

std::optional<QByteArray> ChildCall::result()
{
    return std::nullopt;
}

#endif
