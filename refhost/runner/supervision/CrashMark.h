#pragma once

/// Makes a thread that crashes, or that calls `exit`, mark its progress (`RunProgress`), so that
/// the step it ran can be named. Signals keep their effect. For the rest of the process.
void markCrashes();

/// Gives the calling thread a stack of its own for the handlers of `markCrashes`, so that they also
/// work when its stack has overflowed. For the rest of the thread.
void useOwnSignalStack();
