#include "refhost/engine/StepGuard.h"

#include "Operation.h"

#include <QtGlobal>

#include <cstdlib>
#include <exception>
#include <memory>
#include <typeinfo>

#if __has_include(<cxxabi.h>)
#    include <cxxabi.h>
#endif

namespace {

thread_local std::atomic<int> *stepMark = nullptr;

/// Marks a step as running until the end of the block, however the block is left.
class RunningStep
{
public:
    explicit RunningStep(int index) { mark(index + 1); }
    ~RunningStep() { mark(0); }

private:
    Q_DISABLE_COPY_MOVE(RunningStep)

    static void mark(int number)
    {
        if (stepMark)
            stepMark->store(number, std::memory_order_relaxed);
    }
};

#if __has_include(<cxxabi.h>)

QString typeName(const std::type_info &type)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void *)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), &std::free);
    return QString::fromLocal8Bit(name ? name.get() : type.name());
}

/// Returns the type of the exception that is being handled.
QString currentTypeName()
{
    const std::type_info *const type = abi::__cxa_current_exception_type();
    return type ? typeName(*type) : QStringLiteral("an exception of another language");
}

#else

QString typeName(const std::type_info &type)
{
    return QString::fromLocal8Bit(type.name());
}

QString currentTypeName()
{
    return QStringLiteral("no std::exception");
}

#endif

QString describe(const std::exception &exception)
{
    const QString name = typeName(typeid(exception));
    const QString what = QString::fromLocal8Bit(exception.what());
    return what == name ? name : name + QStringLiteral(": ") + what;
}

} // namespace

std::optional<QString> runGuarded(const Operation &step, int index)
{
    try {
        const RunningStep running(index);
        step.doOperation();
    } catch (const std::exception &exception) {
        return describe(exception);
    } catch (...) {
        return currentTypeName();
    }
    return std::nullopt;
}

void markStepsOfThisThread(std::atomic<int> *mark)
{
    stepMark = mark;
}
