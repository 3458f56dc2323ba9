#include "refhost/validator/trials/MemoryLimit.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#    include <QFile>

#    include <sys/resource.h>
#    include <unistd.h>
#endif

namespace {

/// Sanitizers take the address space for themselves.
constexpr bool hasSanitizer()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return true;
#elif defined(__has_feature)
    return __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
    return false;
#endif
}

} // namespace

#ifdef Q_OS_LINUX

std::optional<QString> limitMemory(int mebibytes)
{
    if (hasSanitizer())
        return QStringLiteral("memory cannot be limited under a sanitizer");
    constexpr rlim_t mebi = 1 << 20;
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(file.fileName(), file.errorString());
    const rlim_t pages = file.readAll().split(' ').constFirst().toULong();
    const rlim_t bytes =
        pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + static_cast<rlim_t>(mebibytes) * mebi;
    const rlimit limit{bytes, RLIM_INFINITY};
    if (setrlimit(RLIMIT_AS, &limit) != 0)
        return QStringLiteral("the system does not let memory be limited");
    return std::nullopt;
}

#else

std::optional<QString> limitMemory(int)
{
    return QStringLiteral("memory cannot be limited on this system");
}

#endif
