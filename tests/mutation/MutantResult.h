#pragma once

#include "tests/mutation/Mutation.h"

#include <QString>

/// What became of one mutation.
struct MutantResult
{
    enum class Outcome { Noticed, TimedOut, Survived, DidNotBuild };

    Mutation mutation;
    Outcome outcome = Outcome::Survived;
    QString tests;        ///< the tests that noticed it, "all" for the whole suite
    QString equalBecause; ///< of a survivor: why no test can notice it, empty when one could
    double seconds = 0;   ///< what it took to find out
};

/// The outcome as the reports call it.
QString outcomeName(MutantResult::Outcome outcome);
