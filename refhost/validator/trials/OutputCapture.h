#pragma once

#include <QByteArray>

/// Collects what this process prints to standard output while the object lives, by any function and
/// from any thread. There can be one at a time.
class OutputCapture
{
public:
    OutputCapture();
    ~OutputCapture();

    /// Whether output is collected; it is not on systems other than Unix.
    bool isActive() const { return m_input >= 0; }

    /// Returns what was printed since the last call. Output that exceeds what a pipe holds is lost.
    QByteArray take();

private:
    Q_DISABLE_COPY_MOVE(OutputCapture)

    int m_input = -1;    ///< the read end of the pipe that stands for standard output
    int m_previous = -1; ///< what standard output was before
};
