#include "refhost/runner/Console.h"

#include "refhost/runner/OneLine.h"

#include <QJsonDocument>

#include <cerrno>
#include <cstdio>

namespace {

bool writeAll(std::FILE *stream, const QByteArray &bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

} // namespace

void Console::print(const QString &line)
{
    m_results += line.toUtf8() + '\n';
}

void Console::printJson(const QJsonObject &json)
{
    m_results += QJsonDocument(json).toJson(QJsonDocument::Indented);
}

void Console::printBytes(const QByteArray &bytes)
{
    m_results += bytes;
}

void Console::note(const QString &line) const
{
    writeAll(stderr, line.toUtf8() + '\n');
}

void Console::complain(const QString &message) const
{
    note(oneLine(QStringLiteral("oprun: ") + message));
}

bool Console::flush()
{
    errno = 0;
    if (writeAll(stdout, m_results)) {
        m_results.clear();
        return true;
    }
    complain(QStringLiteral("standard output: cannot be written (%1)").arg(qt_error_string(errno)));
    return false;
}
