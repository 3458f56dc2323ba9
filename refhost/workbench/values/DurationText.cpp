#include "refhost/workbench/values/DurationText.h"

namespace {

/// Two digits at least, so that small differences show; never "1000" where the next unit begins.
QString withUnit(double value, const char *unit, bool isLast)
{
    const QString number = QString::number(value, 'f', value < 9.95 ? 1 : 0);
    if (!isLast && number == QLatin1String("1000"))
        return {};
    return number + QLatin1Char(' ') + QString::fromUtf8(unit);
}

} // namespace

QString durationText(qint64 nanoseconds)
{
    const double duration = static_cast<double>(qMax<qint64>(0, nanoseconds));
    QString text;
    if (duration < 1e6)
        text = withUnit(duration / 1e3, "µs", false);
    if (text.isEmpty() && duration < 1e9)
        text = withUnit(duration / 1e6, "ms", false);
    return text.isEmpty() ? withUnit(duration / 1e9, "s", true) : text;
}
