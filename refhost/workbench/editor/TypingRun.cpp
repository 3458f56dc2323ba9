#include "refhost/workbench/editor/TypingRun.h"

#include <algorithm>
#include <utility>

namespace {

/// How much the texts have in common at the front and at the back.
int commonSize(const QString &before, const QString &after)
{
    const auto front =
        std::mismatch(before.cbegin(), before.cend(), after.cbegin(), after.cend()).first;
    const int size = static_cast<int>(front - before.cbegin());
    const int most = std::min(before.size(), after.size()) - size;
    const auto back =
        std::mismatch(before.crbegin(), before.crbegin() + most, after.crbegin()).first;
    return size + static_cast<int>(back - before.crbegin());
}

} // namespace

bool TypingRun::takesIn(const QString &before, const QString &after)
{
    constexpr int mostOfOneKey = 2; // a character outside of the basic plane
    const int common = commonSize(before, after);
    const int removed = before.size() - common;
    const bool adds = after.size() > common;
    if (removed > mostOfOneKey) {
        m_kind = Kind::Replacing;
        return false;
    }
    const Kind kind = adds ? Kind::Adding : Kind::Removing;
    const Kind last = std::exchange(m_kind, kind);
    const bool goesOn = last == kind || last == Kind::Replacing;
    return goesOn && !(removed > 0 && adds);
}
