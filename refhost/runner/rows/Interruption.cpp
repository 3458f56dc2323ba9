#include "refhost/runner/rows/Interruption.h"

#include <algorithm>
#include <atomic>
#include <csignal>

#ifdef Q_OS_UNIX
#    include <cerrno>
#    include <sys/select.h>
#    include <unistd.h>
#endif

namespace {

std::atomic<bool> endRequested = false;

} // namespace

bool Interruption::requested() const
{
    return endRequested;
}

#ifdef Q_OS_UNIX

namespace {

/// A pipe that can be read once the end is requested, so that waiting for input ends as well.
int wakeUp[2] = {-1, -1};

void requestEnd(int)
{
    const int before = errno;
    endRequested = true;
    [[maybe_unused]] const auto written = write(wakeUp[1], "", 1);
    errno = before;
}

} // namespace

Interruption::Interruption()
{
    if (pipe(wakeUp) != 0)
        return; // without it Ctrl-C ends the program as usual
    struct sigaction action = {};
    action.sa_handler = requestEnd;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        // What was started in the background ignores Ctrl-C, and has to go on doing so.
        if (before.sa_handler != SIG_IGN)
            sigaction(signal, &action, nullptr);
    }
    std::signal(SIGPIPE, SIG_IGN);
}

bool Interruption::waitForInput(int descriptor) const
{
    fd_set descriptors;
    int ready = 0;
    do {
        FD_ZERO(&descriptors);
        FD_SET(descriptor, &descriptors);
        FD_SET(wakeUp[0], &descriptors);
        ready =
            select(std::max(descriptor, wakeUp[0]) + 1, &descriptors, nullptr, nullptr, nullptr);
    } while (ready < 0 && errno == EINTR && !endRequested);
    return !endRequested;
}

#else

namespace {

void requestEnd(int)
{
    endRequested = true;
}

} // namespace

Interruption::Interruption()
{
    std::signal(SIGINT, requestEnd);
    std::signal(SIGTERM, requestEnd);
}

bool Interruption::waitForInput(int descriptor) const
{
    Q_UNUSED(descriptor)
    return !endRequested;
}

#endif
