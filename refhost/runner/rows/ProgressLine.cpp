#include "refhost/runner/rows/ProgressLine.h"

#include <algorithm>
#include <cstdio>

#ifdef Q_OS_WIN
#    include <io.h>
#else
#    include <unistd.h>
#endif

namespace {

constexpr qint64 millisecondsBetween = 200;

bool isTerminal(std::FILE *stream)
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

} // namespace

ProgressLine::ProgressLine(bool isAlone)
    : m_isWanted(isTerminal(stderr) && (isAlone || !isTerminal(stdout)))
{
    m_sinceStart.start();
    m_sinceShown.start();
}

void ProgressLine::show(const RowTally &tally)
{
    if (!m_isWanted || m_sinceShown.elapsed() < millisecondsBetween)
        return;
    m_sinceShown.restart();
    m_isShown = true;
    const qint64 perSecond = tally.rows * 1000 / std::max<qint64>(m_sinceStart.elapsed(), 1);
    std::fprintf(stderr, "\r\x1b[K%lld rows, %lld failed, %lld warnings, %lld rows a second",
                 tally.rows, tally.failed, tally.warnings, perSecond);
    std::fflush(stderr);
}

void ProgressLine::clear()
{
    if (!m_isShown)
        return;
    m_isShown = false;
    std::fputs("\r\x1b[K", stderr);
    std::fflush(stderr);
}

void ProgressLine::clearLine()
{
    if (!isTerminal(stderr))
        return;
    std::fputs("\r\x1b[K", stderr);
    std::fflush(stderr);
}
