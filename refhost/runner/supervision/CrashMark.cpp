#include "refhost/runner/supervision/CrashMark.h"

#include "refhost/runner/supervision/RunProgress.h"

#include <QtGlobal>

#include <cstdlib>

#ifdef Q_OS_UNIX

#    include <csignal>
#    include <memory>
#    include <new>

namespace {

constexpr std::size_t stackSize = 32768;

/// The stack, which the thread gives back at its end. A thread that has one, of a sanitizer for
/// instance, keeps that.
class SignalStack
{
public:
    SignalStack()
    {
        stack_t before = {};
        if (sigaltstack(nullptr, &before) != 0 || (before.ss_flags & SS_DISABLE) == 0)
            return;
        m_bytes.reset(new (std::nothrow) char[stackSize]);
        stack_t stack = {};
        stack.ss_sp = m_bytes.get();
        stack.ss_size = stackSize;
        if (m_bytes)
            sigaltstack(&stack, nullptr);
    }
    ~SignalStack()
    {
        stack_t none = {};
        none.ss_flags = SS_DISABLE;
        if (m_bytes)
            sigaltstack(&none, nullptr);
    }

private:
    Q_DISABLE_COPY_MOVE(SignalStack)

    std::unique_ptr<char[]> m_bytes;
};

/// Its disposition is the default again when it is called, so that raising ends the process.
void markAndRaise(int signal)
{
    RunProgress::markThisThread();
    raise(signal);
}

void handleCrashes()
{
    struct sigaction action = {};
    action.sa_handler = markAndRaise;
    action.sa_flags = SA_ONSTACK | SA_NODEFER | static_cast<int>(SA_RESETHAND);
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP, SIGSYS}) {
        struct sigaction before = {};
        sigaction(signal, nullptr, &before);
        // The sanitizers have handlers of their own, which report the crash.
        if (before.sa_handler == SIG_DFL)
            sigaction(signal, &action, nullptr);
    }
}

} // namespace

void useOwnSignalStack()
{
    static thread_local const SignalStack stack;
}

#else

namespace {

void handleCrashes() {}

} // namespace

void useOwnSignalStack() {}

#endif

void markCrashes()
{
    handleCrashes();
    std::atexit(&RunProgress::markThisThread);
#ifndef Q_OS_DARWIN
    std::at_quick_exit(&RunProgress::markThisThread);
#endif
}
