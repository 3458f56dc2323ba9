#include "refhost/runner/rows/RowSource.h"

#include "refhost/runner/rows/Interruption.h"

#include <algorithm>
#include <array>
#include <utility>

#ifdef Q_OS_UNIX
#    include <cerrno>
#    include <unistd.h>
#endif

namespace {

/// How much is read at once; also about the size of a batch.
using Block = std::array<char, 65'536>;

#ifdef Q_OS_UNIX

/// Reads what is there, which may be less than a block: QFile would wait for all of it.
qint64 readAvailable(QFile &file, Block &block)
{
    ssize_t size = 0;
    do {
        size = read(file.handle(), block.data(), block.size());
    } while (size < 0 && errno == EINTR);
    return size;
}

QString reasonOf(const QFile &file)
{
    Q_UNUSED(file)
    return qt_error_string(errno);
}

#else

qint64 readAvailable(QFile &file, Block &block)
{
    return file.read(block.data(), static_cast<qint64>(block.size()));
}

QString reasonOf(const QFile &file)
{
    return file.errorString();
}

#endif

} // namespace

RowSource::RowSource(const QString &name, int limit)
    : m_name(name)
    , m_limit(limit)
{
}

QString RowSource::name() const
{
    return m_name == QLatin1String("-") ? QStringLiteral("standard input") : m_name;
}

std::optional<Problem> RowSource::open()
{
    if (m_name.isEmpty())
        return emptyFileName(Problem::Reason::UnreadableFile);
    constexpr int standardInput = 0;
    const QIODevice::OpenMode mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    m_file.setFileName(m_name);
    const bool opened =
        m_name == QLatin1String("-") ? m_file.open(standardInput, mode) : m_file.open(mode);
    if (!opened)
        return unreadable(m_file.errorString());
    return std::nullopt;
}

Problem RowSource::unreadable(const QString &reason) const
{
    return {Problem::Reason::UnreadableFile,
            name(),
            {},
            QStringLiteral("cannot be read (%1)").arg(reason)};
}

std::optional<RowBatch> RowSource::next(const Interruption &interruption)
{
    while (!m_block.isEmpty() || !m_atEnd) {
        if (m_block.isEmpty() && !readBlock(interruption))
            return std::nullopt;
        if (auto batch = takeLines())
            return batch;
    }
    return takeRest();
}

/// False when there will be no more batches.
bool RowSource::readBlock(const Interruption &interruption)
{
    if (!interruption.waitForInput(m_file.handle()))
        return false;
    Block block;
    const qint64 size = readAvailable(m_file, block);
    m_block = QByteArray(block.data(), static_cast<int>(std::max<qint64>(size, 0)));
    m_atEnd = size == 0;
    if (size < 0)
        m_problem = unreadable(reasonOf(m_file));
    return size >= 0;
}

/// The whole lines of the block, if it has any.
std::optional<RowBatch> RowSource::takeLines()
{
    const int newline = m_passesOver ? m_block.indexOf('\n') : m_block.lastIndexOf('\n');
    if (newline < 0) {
        keepForLater();
        return std::nullopt;
    }
    RowBatch batch = batchOf(m_rest + m_block.left(newline + 1));
    m_block.remove(0, newline + 1);
    return batch;
}

void RowSource::keepForLater()
{
    if (!m_passesOver)
        m_rest += m_block;
    m_block.clear();
    if (m_rest.size() > m_limit) {
        m_passesOver = true;
        m_rest.clear();
    }
}

/// The last line, if it has no line break.
std::optional<RowBatch> RowSource::takeRest()
{
    if (m_rest.isEmpty() && !m_passesOver)
        return std::nullopt;
    return batchOf(m_rest);
}

RowBatch RowSource::batchOf(const QByteArray &lines)
{
    const QByteArray byteOrderMark = QByteArrayLiteral("\xEF\xBB\xBF");
    RowBatch batch;
    batch.number = m_number++;
    batch.firstLine = m_line;
    batch.tooLong = std::exchange(m_passesOver, false);
    if (!batch.tooLong)
        batch.lines = lines;
    if (batch.number == 0 && batch.lines.startsWith(byteOrderMark))
        batch.lines.remove(0, byteOrderMark.size());
    m_line += std::count(lines.begin(), lines.end(), '\n');
    m_rest.clear();
    return batch;
}
