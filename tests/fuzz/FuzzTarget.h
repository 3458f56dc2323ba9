#pragma once

#include "tests/fuzz/ByteSource.h"

#include <QString>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>

/// Runs a check on the bytes a fuzzer has come up with; a difference is told and ends the process,
/// which is how the fuzzer learns of it.
inline int runFuzzTarget(QString (*check)(ByteSource), const std::uint8_t *bytes, std::size_t size)
{
    const QString difference = check(ByteSource(bytes, size));
    if (difference.isEmpty())
        return 0;
    QTextStream(stderr) << difference << '\n';
    std::abort();
}
