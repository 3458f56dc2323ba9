#include "refhost/validator/checks/LoadTimeCheck.h"

#include "refhost/validator/CheckContext.h"

#include <QElapsedTimer>

namespace {

/// A host loads all of its plug-ins while its user looks on.
constexpr qint64 mostMilliseconds = 1000;

} // namespace

LoadTimeCheck::LoadTimeCheck()
    : Check({QStringLiteral("file.loadTime"), 1,
             QStringLiteral("Loading takes less than a second."), Ground::Library, Ground::File})
{
}

std::optional<QString> LoadTimeCheck::prepare(CheckContext &context) const
{
    Q_UNUSED(context)
    return std::nullopt;
}

Outcome LoadTimeCheck::run(CheckContext &context) const
{
    QElapsedTimer timer;
    timer.start();
    if (const auto reason = context.loadLibrary())
        return {Verdict::Skipped, *reason};
    Outcome outcome;
    if (timer.elapsed() > mostMilliseconds)
        outcome.warn(QStringLiteral("loading took %1 ms").arg(timer.elapsed()));
    return outcome;
}
