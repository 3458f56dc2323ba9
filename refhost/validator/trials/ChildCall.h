#pragma once

#include <QByteArray>

#include <functional>
#include <optional>

/// A call in a copy of this process, which has run nothing but what this one has run so far. The
/// copy works while this process goes on.
class ChildCall
{
public:
    /// Starts `call` in the copy.
    explicit ChildCall(const std::function<QByteArray()> &call);
    ~ChildCall();

    /// Whether processes can be copied on this system.
    static bool isPossible();

    /// Waits for the copy and returns what the call returned; nothing when the copy ended before.
    std::optional<QByteArray> result();

private:
    Q_DISABLE_COPY_MOVE(ChildCall)

    int m_input = -1; ///< the read end of the pipe for the result
    qint64 m_process = 0;
};
