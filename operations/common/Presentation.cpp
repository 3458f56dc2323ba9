#include "operations/common/Presentation.h"

#include <limits>

namespace {

/// Whether filling in a value of `valueSize` units is sure to fit. Qt adds the sizes up in an int,
/// and no more markers than percent signs can be filled.
bool isFillable(const QString &pattern, int valueSize)
{
    const qint64 markers = pattern.count(QLatin1Char('%'));
    return pattern.size() + markers * valueSize <= std::numeric_limits<int>::max();
}

} // namespace

QString displayVariableName(const QString &name)
{
    const QLatin1Char mark('$');
    return name.isEmpty() || name.startsWith(mark) ? name : mark + name;
}

QString fillMarker(const QString &pattern, const QString &value)
{
    return isFillable(pattern, value.size()) ? pattern.arg(value) : pattern;
}

QString fillMarker(const QString &pattern, int value)
{
    constexpr int mostDigits = 32; // with the digits and signs of any language
    return isFillable(pattern, mostDigits) ? pattern.arg(value) : pattern;
}
