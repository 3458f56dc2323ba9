#include "refhost/validator/checks/AcceptanceCheck.h"

#include "refhost/validator/CheckContext.h"

AcceptanceCheck::AcceptanceCheck()
    : Check({QStringLiteral("file.accepted"), 1,
             QStringLiteral("The host accepts it: interface, interface version, capabilities."),
             Ground::Library, Ground::Plugin})
{
}

Outcome AcceptanceCheck::run(CheckContext &context) const
{
    Outcome outcome;
    if (const auto reason = context.loadPlugin())
        outcome.fail(*reason);
    return outcome;
}
