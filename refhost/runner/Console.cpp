#include "refhost/runner/Console.h"

#include "refhost/engine/JsonWriter.h"
#include "refhost/engine/OutputFile.h"
#include "refhost/runner/OneLine.h"
#include "refhost/runner/supervision/RunProgress.h"

#include <QJsonObject>

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

void Console::printJson(const JsonValue &json)
{
    m_results += indentedJson(json);
}

void Console::printJson(const QJsonObject &json)
{
    printJson(jsonFromQt(json));
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
    OutputFile out(QStringLiteral("-"));
    RunProgress &progress = RunProgress::current();
    progress.isWriting = true;
    const auto problem = out.write(m_results);
    progress.isWriting = false;
    if (problem)
        complain(problem->toString());
    else
        m_results.clear();
    return !problem;
}
