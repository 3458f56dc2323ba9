#pragma once

#include <QtGlobal>

/// Notes that the user or the system asks the program to end (Ctrl-C) instead of ending it at once,
/// and keeps a reader of the output that goes away from ending it. For the rest of the process; to
/// be made once.
class Interruption
{
public:
    Interruption();

    /// Whether there was such a wish. From any thread.
    bool requested() const;

    /// Waits until the open file `descriptor` can be read. False when the wish to end comes first.
    bool waitForInput(int descriptor) const;

private:
    Q_DISABLE_COPY_MOVE(Interruption)
};
