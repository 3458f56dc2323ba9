#include "tests/mutation/MutantResult.h"

QString outcomeName(MutantResult::Outcome outcome)
{
    switch (outcome) {
    case MutantResult::Outcome::Noticed:
        return QStringLiteral("noticed");
    case MutantResult::Outcome::TimedOut:
        return QStringLiteral("timed out");
    case MutantResult::Outcome::Survived:
        return QStringLiteral("survived");
    default:
        return QStringLiteral("did not build");
    }
}
