#pragma once

#include <QtGlobal>

/// Notes signals that ask the program to end (Ctrl-C) instead of ending it at once; a second one
/// ends it, unless another process supervises this one and ends it in time. For the rest of the
/// process; to be made once.
class Interruption
{
public:
    explicit Interruption(bool isSupervised = false);

    /// Makes a write to a pipe without a reader fail instead of ending the process.
    static void ignoreBrokenPipes();

    /// Whether there was such a wish. From any thread.
    bool requested() const;

    /// Returns the number of the signal that asked the program to end, 0 when there was none.
    int signalNumber() const;

    /// Returns a descriptor that can be read once the program has been asked to end; negative where
    /// the system has no such signals.
    int wakeUpDescriptor() const;

    /// Waits until the open file `descriptor` can be read, or cannot be waited for. False when the
    /// wish to end or `endWaiting` comes first.
    bool waitForInput(int descriptor) const;

    /// Ends all waiting for input, now and later. From any thread.
    void endWaiting();

private:
    Q_DISABLE_COPY_MOVE(Interruption)
};
