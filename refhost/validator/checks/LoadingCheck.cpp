#include "refhost/validator/checks/LoadingCheck.h"

#include "refhost/validator/CheckContext.h"

LoadingCheck::LoadingCheck()
    : Check({QStringLiteral("file.loads"), 1,
             QStringLiteral("The library loads, all symbols resolved, and makes its root object."),
             Ground::File, Ground::Library})
{
}

Outcome LoadingCheck::run(CheckContext &context) const
{
    Outcome outcome;
    if (const auto reason = context.loadLibrary())
        outcome.fail(*reason);
    return outcome;
}
