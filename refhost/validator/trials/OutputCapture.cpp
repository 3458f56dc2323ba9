#include "refhost/validator/trials/OutputCapture.h"

#ifdef Q_OS_UNIX
#    include <array>
#    include <cstdio>
#    include <fcntl.h>
#    include <iostream>
#    include <unistd.h>

namespace {

void flushOutput()
{
    std::cout.flush();
    std::fflush(stdout);
}

} // namespace

OutputCapture::OutputCapture()
{
    int ends[2];
    if (pipe(ends) != 0)
        return;
    flushOutput();
    for (const int end : ends) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        // A full pipe must not block the plug-in, nor an empty one the reader.
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    m_input = ends[0];
    m_previous = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    dup2(ends[1], STDOUT_FILENO);
    close(ends[1]);
}

OutputCapture::~OutputCapture()
{
    if (!isActive())
        return;
    flushOutput();
    dup2(m_previous, STDOUT_FILENO);
    close(m_previous);
    close(m_input);
}

QByteArray OutputCapture::take()
{
    std::array<char, 4096> buffer;
    QByteArray output;
    if (!isActive())
        return output;
    flushOutput();
    ssize_t count = 0;
    while ((count = read(m_input, buffer.data(), buffer.size())) > 0)
        output.append(buffer.data(), static_cast<int>(count));
    // After an error the stream would drop all further output.
    std::clearerr(stdout);
    std::cout.clear();
    return output;
}

#else

OutputCapture::OutputCapture() = default;
OutputCapture::~OutputCapture() = default;

QByteArray OutputCapture::take()
{
    return {};
}

#endif
