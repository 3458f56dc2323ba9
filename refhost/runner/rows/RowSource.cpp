#include "refhost/runner/rows/RowSource.h"

#include "refhost/runner/RunnerText.h"
#include "refhost/runner/rows/Interruption.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#ifdef Q_OS_UNIX
#    include <cerrno>
#    include <unistd.h>
#endif

namespace {

/// How much is read at once; also about the size of a batch.
using Block = std::array<char, 65536>;

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

const char byteOrderMark[] = "\xEF\xBB\xBF";

bool isBlank(const QByteArray &bytes, int begin, int end)
{
    // Not a temporary object: QByteArray would trim the bytes where they are.
    const auto line = QByteArray::fromRawData(bytes.constData() + begin, end - begin);
    return line.trimmed().isEmpty();
}

/// Returns the place behind the first `count` rows of `lines`, or the end; `found` is how many
/// there are.
int endOfRows(const QByteArray &lines, qint64 count, bool hasBlankRows, qint64 &found)
{
    int begin = 0;
    for (found = 0; found < count && begin < lines.size();) {
        const int newline = lines.indexOf('\n', begin);
        const int end = newline < 0 ? lines.size() : newline + 1;
        if (hasBlankRows || !isBlank(lines, begin, end))
            ++found;
        begin = end;
    }
    return begin;
}

/// Returns true if `bytes` holds a row with its line break.
bool hasRow(const QByteArray &bytes, bool hasBlankRows)
{
    qint64 found = 0;
    return bytes.at(std::max(endOfRows(bytes, 1, hasBlankRows, found) - 1, 0)) == '\n' &&
           found == 1;
}

} // namespace

RowSource::RowSource(const QString &name, qint64 firstLine, int limit)
    : m_name(name)
    , m_limit(limit)
    , m_line(firstLine)
{
}

QString RowSource::name() const
{
    return m_name == QLatin1String("-") ? RunnerText::tr("standard input") : m_name;
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
            RunnerText::tr("cannot be read (%1)").arg(reason)};
}

std::optional<QByteArray> RowSource::head(bool hasBlankRows, const Interruption &interruption)
{
    const int enough = static_cast<int>(Block().size());
    while (!m_atEnd && m_block.size() < enough &&
           (m_block.isEmpty() || !hasRow(m_block, hasBlankRows))) {
        if (!readBlock(interruption))
            return std::nullopt;
    }
    const bool isMarked = m_isAtStart && m_block.startsWith(byteOrderMark);
    return isMarked ? m_block.mid(static_cast<int>(std::strlen(byteOrderMark))) : m_block;
}

qint64 RowSource::skip(qint64 count, bool hasBlankRows, const Interruption &interruption)
{
    qint64 skipped = 0;
    while (skipped < count) {
        const auto batch = next(interruption);
        if (!batch)
            break;
        qint64 found = 1;
        if (!batch->tooLong)
            putBack(*batch, endOfRows(batch->lines, count - skipped, hasBlankRows, found));
        skipped += found;
    }
    m_number = 0;
    return skipped;
}

/// Makes the lines of `batch` from `begin` on the next that will be returned.
void RowSource::putBack(const RowBatch &batch, int begin)
{
    m_line = batch.firstLine + std::count(batch.lines.begin(), batch.lines.begin() + begin, '\n');
    m_block.prepend(batch.lines.mid(begin));
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
    m_block.append(block.data(), static_cast<int>(std::max<qint64>(size, 0)));
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
    RowBatch batch;
    batch.number = m_number++;
    batch.firstLine = m_line;
    batch.tooLong = std::exchange(m_passesOver, false);
    if (!batch.tooLong)
        batch.lines = lines;
    if (std::exchange(m_isAtStart, false) && batch.lines.startsWith(byteOrderMark))
        batch.lines.remove(0, static_cast<int>(std::strlen(byteOrderMark)));
    m_line += std::count(lines.begin(), lines.end(), '\n');
    m_rest.clear();
    return batch;
}
