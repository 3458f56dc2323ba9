#include "refhost/runner/supervision/Supervisor.h"

#include "refhost/runner/Console.h"
#include "refhost/runner/rows/ProgressLine.h"
#include "refhost/runner/supervision/CrashMark.h"
#include "refhost/runner/supervision/ProcessEnd.h"
#include "refhost/runner/supervision/RunProgress.h"

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>

#ifdef Q_OS_UNIX
#    include <array>
#    include <cerrno>
#    include <chrono>
#    include <csignal>
#    include <fcntl.h>
#    include <optional>
#    include <poll.h>
#    include <sys/wait.h>
#    include <unistd.h>
#    include <vector>
#endif
#ifdef Q_OS_LINUX
#    include <sys/prctl.h>
#endif

namespace {

/// Returns whether a line can be written to standard error without waiting. It may be a pipe whose
/// reader takes nothing, which is not to keep the program from its end.
bool takesMessages()
{
#ifdef Q_OS_UNIX
    constexpr int patience = 100;
    pollfd descriptor = {STDERR_FILENO, POLLOUT, 0};
    return poll(&descriptor, 1, patience) != 0;
#else
    return true;
#endif
}

int report(const ProcessEnd &end, const RunProgress &run)
{
    run.removeTemporaryFiles();
    const Console console;
    if (run.hasRows && takesMessages())
        ProgressLine::clearLine();
    for (const QString &line : end.messages(run)) {
        if (takesMessages())
            console.complain(line);
    }
    return end.exitStatus();
}

/// Does the work in this process. `exit` within a step becomes a failure.
int superviseHere(const std::function<int()> &work)
{
    RunProgress::ofThisThread();
    const auto refuseToEnd = [] {
        const RunProgress &run = RunProgress::current();
        if (!run.isFinished)
            std::_Exit(report({ProcessEnd::Reason::Exit, EXIT_SUCCESS}, run));
    };
    markCrashes();
    std::atexit(refuseToEnd);
    const int status = work();
    RunProgress::current().isFinished = true;
    return status;
}

} // namespace

#ifdef Q_OS_UNIX

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr std::array<int, 3> endSignals{SIGINT, SIGTERM, SIGHUP};

/// Two signals within this time are one request to end: a terminal and `timeout` send several.
constexpr Seconds sameRequest{0.3};

/// A pipe that can be read after a signal; the number of the last signal that asks for the end.
int wakeUp[2] = {-1, -1};
volatile std::sig_atomic_t endSignal = 0;

void handleSignal(int signal)
{
    const int before = errno;
    if (signal != SIGCHLD)
        endSignal = signal;
    [[maybe_unused]] const auto written = write(wakeUp[1], "", 1);
    errno = before;
}

/// Handlers of signals for as long as the object exists. A signal that is ignored stays ignored: a
/// program that was started in the background does not end on Ctrl-C.
class SignalHandlers
{
public:
    SignalHandlers()
    {
        for (const int signal : endSignals)
            handle(signal);
        handle(SIGCHLD);
    }
    ~SignalHandlers()
    {
        for (const Handler &handler : m_before)
            sigaction(handler.signal, &handler.action, nullptr);
    }

private:
    Q_DISABLE_COPY_MOVE(SignalHandlers)

    struct Handler
    {
        int signal;
        struct sigaction action;
    };

    void handle(int signal)
    {
        struct sigaction action = {};
        action.sa_handler = handleSignal;
        action.sa_flags = SA_RESTART | SA_NOCLDSTOP;
        Handler before = {signal, {}};
        sigaction(signal, nullptr, &before.action);
        if (signal != SIGCHLD && before.action.sa_handler == SIG_IGN)
            return;
        sigaction(signal, &action, nullptr);
        m_before.push_back(before);
    }

    std::vector<Handler> m_before;
};

/// Delivers no signal while the object exists, so that none comes between fork and the handlers.
class BlockedSignals
{
public:
    BlockedSignals()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

private:
    Q_DISABLE_COPY_MOVE(BlockedSignals)

    sigset_t m_before;
};

/// Measures how long the rows that run take, or a run without rows. Time during which this process
/// was stopped does not count.
class TimeLimit
{
public:
    TimeLimit(double seconds, const RunProgress &run)
        : m_limit(seconds)
        , m_run(run)
        , m_rows(RunProgress::mostThreads)
    {
    }

    /// The time until `findExceeded` has to be called again, in milliseconds; -1 for no limit.
    int interval() const
    {
        constexpr double mostMilliseconds = 50;
        if (m_limit <= Seconds::zero())
            return -1;
        return 1 + static_cast<int>(qMin(m_limit.count() * 20, mostMilliseconds));
    }

    /// The end of the run if the limit is exceeded.
    std::optional<ProcessEnd> findExceeded()
    {
        if (m_limit <= Seconds::zero())
            return std::nullopt;
        const auto now = Clock::now();
        m_waited += qMin<Seconds>(now - m_last, Seconds(1));
        m_last = now;
        const int thread = m_run.hasRows ? findSlowRow() : -1;
        if (thread < 0 && (m_run.hasRows || m_waited < m_limit))
            return std::nullopt;
        return ProcessEnd{ProcessEnd::Reason::TimedOut, 0, m_limit.count(), thread};
    }

private:
    struct Row
    {
        qint64 moment = 0;
        Seconds since{0}; ///< it was seen first
    };

    int findSlowRow()
    {
        const int count = qMin<int>(m_run.threadCount, RunProgress::mostThreads);
        for (int i = 0; i < count; ++i) {
            const auto place = static_cast<std::size_t>(i);
            const qint64 moment = m_run.threads.at(place).moment;
            Row &row = m_rows.at(place);
            if (moment != row.moment)
                row = {moment, m_waited};
            else if (moment % 2 != 0 && m_waited - row.since >= m_limit)
                return i;
        }
        return -1;
    }

    const Seconds m_limit;
    const RunProgress &m_run;
    Clock::time_point m_last = Clock::now();
    Seconds m_waited{0};
    std::vector<Row> m_rows;
};

/// The child process, as its parent sees it.
class Child
{
public:
    Child(pid_t id, const RunProgress &run)
        : m_id(id)
        , m_run(run)
    {
    }

    /// Waits for the end of the child and returns the exit status of the program.
    int await(double timeoutSeconds)
    {
        TimeLimit limit(timeoutSeconds, m_run);
        while (!hasEnded()) {
            sleep(limit.interval());
            passSignalOn();
            if (const auto end = limit.findExceeded(); end && !m_killedFor)
                kill(*end);
            if (m_asked && Clock::now() - *m_asked >= Seconds(graceSeconds))
                kill({ProcessEnd::Reason::Blocked, 0, graceSeconds});
        }
        return exitStatus();
    }

private:
    bool hasEnded() { return waitpid(m_id, &m_status, WNOHANG) == m_id; }

    /// Waits for a signal, for at most this time; -1 is for ever.
    void sleep(int milliseconds) const
    {
        constexpr int graceInterval = 50;
        if (m_asked)
            milliseconds = milliseconds < 0 ? graceInterval : qMin(milliseconds, graceInterval);
        pollfd descriptor = {wakeUp[0], POLLIN, 0};
        if (poll(&descriptor, 1, milliseconds) > 0) {
            std::array<char, 64> bytes;
            [[maybe_unused]] const auto size = read(wakeUp[0], bytes.data(), bytes.size());
        }
    }

    void passSignalOn()
    {
        const int signal = endSignal;
        if (signal == 0)
            return;
        endSignal = 0;
        if (m_asked && Clock::now() - *m_asked > sameRequest)
            kill({ProcessEnd::Reason::Blocked, 0, Seconds(Clock::now() - *m_asked).count()});
        if (!m_asked)
            m_asked = Clock::now();
        ::kill(m_id, signal);
    }

    void kill(const ProcessEnd &reason)
    {
        if (!m_killedFor)
            m_killedFor = reason;
        ::kill(m_id, SIGKILL);
    }

    int exitStatus() const
    {
        if (WIFEXITED(m_status)) {
            const int status = WEXITSTATUS(m_status);
            return m_run.isFinished ? status : report({ProcessEnd::Reason::Exit, status}, m_run);
        }
        const int signal = WTERMSIG(m_status);
        if (signal == SIGKILL && m_killedFor)
            return report(*m_killedFor, m_run);
        for (const int ending : endSignals) {
            if (signal == ending)
                return report({ProcessEnd::Reason::Interrupted, signal}, m_run);
        }
        if (signal == SIGPIPE && m_run.isWriting)
            raiseByDefault(SIGPIPE);
        return report({ProcessEnd::Reason::Signal, signal}, m_run);
    }

    /// A reader of the output that has gone ends this process as it would have without a child.
    static void raiseByDefault(int signal)
    {
        std::signal(signal, SIG_DFL);
        raise(signal);
    }

    const pid_t m_id;
    const RunProgress &m_run;
    int m_status = 0;
    std::optional<Clock::time_point> m_asked;
    std::optional<ProcessEnd> m_killedFor;
};

/// Opens the pipe; false where there is none.
bool openWakeUp()
{
    if (pipe(wakeUp) != 0)
        return false;
    for (const int descriptor : wakeUp) {
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        fcntl(descriptor, F_SETFL, O_NONBLOCK);
    }
    return true;
}

void closeWakeUp()
{
    close(wakeUp[0]);
    close(wakeUp[1]);
}

/// Lets this process, a child, end when its parent is killed.
void endWithParent(pid_t parent)
{
#    ifdef Q_OS_LINUX
    prctl(PR_SET_PDEATHSIG, SIGKILL);
#    endif
    if (getppid() != parent)
        _exit(EXIT_FAILURE);
}

int workAsChild(const std::function<int()> &work, RunProgress &run)
{
    run.isSupervised = true;
    RunProgress::ofThisThread();
    markCrashes();
    const int status = work();
    run.isFinished = true;
    return status;
}

} // namespace

bool canLimitTime()
{
    return true;
}

int supervise(const std::function<int()> &work, double timeoutSeconds)
{
    RunProgress *const run = RunProgress::renew();
    if (!run || !openWakeUp())
        return superviseHere(work);
    // What is buffered would be written by both processes.
    std::fflush(nullptr);
    const pid_t parent = getpid();
    pid_t child = -1;
    std::optional<SignalHandlers> handlers;
    {
        const BlockedSignals blocked;
        handlers.emplace();
        child = fork();
        if (child == 0)
            endWithParent(parent);
        if (child <= 0)
            handlers.reset();
    }
    if (child > 0) {
        const int status = Child(child, *run).await(timeoutSeconds);
        closeWakeUp();
        return status;
    }
    closeWakeUp();
    return child == 0 ? workAsChild(work, *run) : superviseHere(work);
}

#else

bool canLimitTime()
{
    return false;
}

int supervise(const std::function<int()> &work, double timeoutSeconds)
{
    Q_UNUSED(timeoutSeconds)
    return superviseHere(work);
}

#endif
