#pragma once

#include <Qt>

/// How texts are compared when letter case counts, and when it does not.
constexpr Qt::CaseSensitivity caseSensitivity(bool ignoreCase)
{
    return ignoreCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
}
