#pragma once

#include <QtGlobal>

/// Notes that the user or the system asks the program to end (Ctrl-C) instead of ending it at once;
/// being asked again ends it. A reader of the output that goes away does not end the program any
/// more. For the rest of the process; to be made once.
class Interruption
{
public:
    Interruption();

    /// Whether there was such a wish. From any thread.
    bool requested() const;

    /// Waits until the open file `descriptor` can be read, or cannot be waited for. False when the
    /// wish to end or `endWaiting` comes first.
    bool waitForInput(int descriptor) const;

    /// Ends all waiting for input, now and later. From any thread.
    void endWaiting();

private:
    Q_DISABLE_COPY_MOVE(Interruption)
};
