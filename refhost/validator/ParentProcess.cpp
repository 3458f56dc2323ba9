#include "refhost/validator/ParentProcess.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>

#if defined(Q_OS_UNIX)
#    include <cerrno>
#    include <csignal>
#    include <fcntl.h>
#    include <unistd.h>
#elif defined(Q_OS_WIN)
#    include <cstdlib>
#    include <fcntl.h>
#    include <io.h>
#endif
#ifdef Q_OS_LINUX
#    include <sys/prctl.h>
#endif

namespace {

// A signal handler reads them, so they are neither allocated nor locked.
std::array<char, 4096> fileToRemove = {};
std::atomic<bool> hasFileToRemove = false;

} // namespace

#if defined(Q_OS_UNIX)

namespace {

/// Returns a new descriptor of what `stream` was, and opens the null device in its place.
int take(int stream, int flags)
{
    // Above the descriptors that a plug-in is likely to get, or to close by number.
    constexpr int lowest = 64;
    const int taken = fcntl(stream, F_DUPFD_CLOEXEC, lowest);
    const int null = open("/dev/null", flags | O_CLOEXEC);
    dup2(null, stream);
    close(null);
    return taken;
}

/// Ends this process and those it started. Async-signal-safe.
[[noreturn]] void endNow()
{
    if (hasFileToRemove)
        unlink(fileToRemove.data());
    // Where the process has no group of its own, the group is another program's.
    kill(getpgrp() == getpid() ? 0 : getpid(), SIGKILL);
    _exit(1);
}

void handleRequest(int)
{
    endNow();
}

/// Blocks all signals but SIGTERM in this thread: the plug-in's are for the plug-in's threads.
void blockOtherSignals()
{
    sigset_t others;
    sigfillset(&others);
    sigdelset(&others, SIGTERM);
    pthread_sigmask(SIG_SETMASK, &others, nullptr);
}

void awaitEndOfInput(int input)
{
    blockOtherSignals();
    char byte = 0;
    ssize_t count = 0;
    do {
        count = read(input, &byte, 1);
    } while (count > 0 || (count < 0 && errno == EINTR));
    if (count == 0)
        endNow();
}

} // namespace

ParentPipes takeStandardStreams()
{
    return {take(STDIN_FILENO, O_RDONLY), take(STDOUT_FILENO, O_WRONLY)};
}

void writeToParent(int output, const QByteArray &bytes)
{
    if (output < 0)
        return;
    const char *next = bytes.constData();
    const char *const end = next + bytes.size();
    while (next < end) {
        const ssize_t count = write(output, next, static_cast<std::size_t>(end - next));
        if (count < 0 && errno != EINTR)
            return;
        next += std::max<ssize_t>(count, 0);
    }
}

void endWithParent(int input)
{
    setpgid(0, 0);
    struct sigaction action = {};
    action.sa_handler = handleRequest;
    sigaction(SIGTERM, &action, nullptr);
#    ifdef Q_OS_LINUX
    // Also ends a process whose plug-in has closed the pipe.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
#    endif
    std::thread(awaitEndOfInput, input).detach();
}

#elif defined(Q_OS_WIN)

namespace {

int take(int stream, int flags)
{
    const int taken = _dup(stream);
    const int null = _open("NUL", flags);
    _dup2(null, stream);
    _close(null);
    return taken;
}

} // namespace

ParentPipes takeStandardStreams()
{
    const ParentPipes pipes{take(0, _O_RDONLY), take(1, _O_WRONLY)};
    _setmode(pipes.output, _O_BINARY);
    return pipes;
}

void writeToParent(int output, const QByteArray &bytes)
{
    if (output >= 0)
        _write(output, bytes.constData(), static_cast<unsigned>(bytes.size()));
}

void endWithParent(int input)
{
    std::thread([input] {
        char byte = 0;
        while (_read(input, &byte, 1) > 0) {
        }
        if (hasFileToRemove)
            _unlink(fileToRemove.data());
        std::_Exit(1);
    }).detach();
}

#else
#    error "no pipes to the parent process on this system"
#endif

void setFileToRemove(const QByteArray &path)
{
    hasFileToRemove = false;
    if (path.isEmpty() || path.size() >= static_cast<int>(fileToRemove.size()))
        return;
    std::copy(path.cbegin(), path.cend(), fileToRemove.begin());
    fileToRemove.at(static_cast<std::size_t>(path.size())) = '\0';
    hasFileToRemove = true;
}
