#include "refhost/validator/trials/MemoryLimit.h"

#include <QtGlobal>

#ifdef __GLIBC__
#    include <malloc.h>
#endif
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

#ifdef Q_OS_LINUX

/// The address space this process has taken, in bytes; 0 when the system does not tell.
rlim_t addressSpace()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const rlim_t pages = file.readAll().split(' ').constFirst().toULong();
    return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

#endif

} // namespace

std::optional<qint64> allocatedBytes()
{
    if (hasSanitizer())
        return std::nullopt;
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
#elif defined(__GLIBC__)
    // The fields are of type int and wrap around beyond 2 GiB.
    const struct mallinfo info = mallinfo();
    return static_cast<qint64>(info.uordblks) + info.hblkhd;
#else
    return std::nullopt;
#endif
}

std::optional<QString> memoryLimitObstacle()
{
    if (hasSanitizer())
        return QStringLiteral("memory cannot be limited under a sanitizer");
#ifdef Q_OS_LINUX
    return addressSpace() > 0 ? std::nullopt
                              : std::optional<QString>(QStringLiteral("/proc cannot be read"));
#else
    return QStringLiteral("memory cannot be limited on this system");
#endif
}

void limitMemory(int mebibytes)
{
    if (memoryLimitObstacle())
        return;
#ifdef Q_OS_LINUX
    constexpr rlim_t mebi = 1 << 20;
    const rlimit limit{addressSpace() + static_cast<rlim_t>(mebibytes) * mebi, RLIM_INFINITY};
    setrlimit(RLIMIT_AS, &limit);
#else
    Q_UNUSED(mebibytes)
#endif
}
