#include "operations/common/Presentation.h"

#include <limits>
#include <new>

namespace {

/// The number that the place marker at `begin`, where its "%" is, has as `QString::arg` reads it:
/// one or two digits, behind an "L" or not. -1 when there is none.
int markerNumber(const QString &pattern, int begin)
{
    const auto digitAt = [&](int i) {
        return i < pattern.size() ? pattern.at(i).digitValue() : -1;
    };
    int next = begin + 1;
    if (next < pattern.size() && pattern.at(next) == QLatin1Char('L'))
        ++next;
    const int first = digitAt(next);
    const int second = first < 0 ? -1 : digitAt(next + 1);
    return second < 0 ? first : 10 * first + second;
}

/// How often the lowest marker occurs, which is the one that is filled.
int lowestMarkerCount(const QString &pattern)
{
    int lowest = std::numeric_limits<int>::max();
    int count = 0;
    for (int i = pattern.indexOf(QLatin1Char('%')); i >= 0;
         i = pattern.indexOf(QLatin1Char('%'), i + 1)) {
        const int number = markerNumber(pattern, i);
        if (number < 0 || number > lowest)
            continue;
        count = number < lowest ? 1 : count + 1;
        lowest = number;
    }
    return count;
}

/// Whether a value of this size can be filled in without a size beyond an int, in which Qt adds up.
bool isFillable(const QString &pattern, int valueSize)
{
    return pattern.size() + qint64(lowestMarkerCount(pattern)) * valueSize <=
           std::numeric_limits<int>::max();
}

/// The pattern with the value filled in, or as it is, when that does not fit into memory.
template <typename Value>
QString filled(const QString &pattern, const Value &value, int valueSize)
{
    try {
        return isFillable(pattern, valueSize) ? pattern.arg(value) : pattern;
    } catch (const std::bad_alloc &) {
        return pattern;
    }
}

} // namespace

QString displayVariableName(const QString &name)
{
    const QLatin1Char mark('$');
    return name.isEmpty() || name.startsWith(mark) ? name : mark + name;
}

QString fillMarker(const QString &pattern, const QString &value)
{
    return filled(pattern, value, value.size());
}

QString fillMarker(const QString &pattern, int value)
{
    constexpr int mostDigits = 32; // with the digits and signs of any language
    return filled(pattern, value, mostDigits);
}
