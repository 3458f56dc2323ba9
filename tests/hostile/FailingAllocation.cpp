#include "tests/hostile/FailingAllocation.h"

#include <QtGlobal>

#include <algorithm>

// The functions behind the ones replaced here, by which the C library offers to replace them.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

int remaining = 0; ///< allocations until the failing one; not armed at 0
bool failsForGood = false;
bool hasFailed = false;
std::size_t largestSize = 0;

bool fails(std::size_t size)
{
    largestSize = std::max(largestSize, size);
    if (remaining == 0)
        return hasFailed && failsForGood;
    --remaining;
    hasFailed = remaining == 0;
    return hasFailed;
}

} // namespace

void FailingAllocation::arm(int count, bool forGood)
{
    hasFailed = false;
    failsForGood = forGood;
    remaining = count;
}

bool FailingAllocation::disarm()
{
    remaining = 0;
    failsForGood = false;
    return hasFailed;
}

void FailingAllocation::watch()
{
    largestSize = 0;
}

std::size_t FailingAllocation::largest()
{
    return largestSize;
}

extern "C" Q_DECL_EXPORT void *malloc(std::size_t size)
{
    return fails(size) ? nullptr : __libc_malloc(size);
}

extern "C" Q_DECL_EXPORT void *calloc(std::size_t count, std::size_t size)
{
    return fails(count * size) ? nullptr : __libc_calloc(count, size);
}

extern "C" Q_DECL_EXPORT void *realloc(void *memory, std::size_t size)
{
    return fails(size) ? nullptr : __libc_realloc(memory, size);
}
