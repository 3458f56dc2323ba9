#include "refhost/runner/rows/Interruption.h"

#include <atomic>
#include <csignal>

#ifdef Q_OS_UNIX
#    include <cerrno>
#    include <fcntl.h>
#    include <poll.h>
#    include <unistd.h>
#endif

namespace {

std::atomic<int> endSignal = 0; ///< the signal that asked the program to end
std::atomic<bool> waitingEnded = false;

} // namespace

bool Interruption::requested() const
{
    return endSignal != 0;
}

int Interruption::signalNumber() const
{
    return endSignal;
}

#ifdef Q_OS_UNIX

namespace {

/// A pipe that can be read once waiting for input is to end; -1 where there is none.
int wakeUp[2] = {-1, -1};

void wake()
{
    waitingEnded = true;
    [[maybe_unused]] const auto written = write(wakeUp[1], "", 1);
}

void requestEnd(int number)
{
    const int before = errno;
    endSignal = number;
    wake();
    errno = before;
}

/// Moves the descriptor out of the way of standard input, output and error, which may be closed.
int movedUp(int descriptor)
{
    const int moved = fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    close(descriptor);
    return moved;
}

} // namespace

Interruption::Interruption(bool isSupervised)
{
    if (pipe(wakeUp) == 0) {
        wakeUp[0] = movedUp(wakeUp[0]);
        wakeUp[1] = movedUp(wakeUp[1]);
    }
    struct sigaction action = {};
    action.sa_handler = requestEnd;
    action.sa_flags = SA_RESTART;
    // The program may be held up in a step, or by the reader of its output.
    if (!isSupervised)
        action.sa_flags |= static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        // What was started in the background ignores Ctrl-C, and has to go on doing so.
        if (before.sa_handler != SIG_IGN)
            sigaction(signal, &action, nullptr);
    }
}

void Interruption::ignoreBrokenPipes()
{
    std::signal(SIGPIPE, SIG_IGN);
}

bool Interruption::waitForInput(int descriptor) const
{
    // A negative descriptor is passed over.
    pollfd descriptors[2] = {{descriptor, POLLIN, 0}, {wakeUp[0], POLLIN, 0}};
    int ready = 0;
    do {
        ready = poll(descriptors, 2, -1);
    } while (ready < 0 && errno == EINTR && !waitingEnded);
    return !waitingEnded;
}

int Interruption::wakeUpDescriptor() const
{
    return wakeUp[0];
}

void Interruption::endWaiting()
{
    wake();
}

#else

namespace {

void requestEnd(int number)
{
    endSignal = number;
    waitingEnded = true;
}

} // namespace

Interruption::Interruption(bool isSupervised)
{
    Q_UNUSED(isSupervised)
    std::signal(SIGINT, requestEnd);
    std::signal(SIGTERM, requestEnd);
}

void Interruption::ignoreBrokenPipes() {}

bool Interruption::waitForInput(int descriptor) const
{
    Q_UNUSED(descriptor)
    return !waitingEnded;
}

int Interruption::wakeUpDescriptor() const
{
    return -1;
}

void Interruption::endWaiting()
{
    waitingEnded = true;
}

#endif
