#include "refhost/runner/rows/RowFormatGuess.h"

#include "refhost/runner/RunnerText.h"

#include <algorithm>

namespace {

/// A format that a file may have by mistake.
struct Format
{
    bool (*matches)(const QByteArray &head);
    const char *message; ///< what it is, what is expected, what to do
};

std::optional<Problem> findFormat(const Format *begin, const Format *end, const QByteArray &head)
{
    const auto *const found =
        std::find_if(begin, end, [&](const Format &format) { return format.matches(head); });
    if (found == end)
        return std::nullopt;
    return Problem{Problem::Reason::UnfitValue, {}, {}, RunnerText::tr(found->message)};
}

/// Returns the first line from `begin` on that is not blank, with its line break if there is one.
QByteArray firstRow(const QByteArray &head, int begin = 0)
{
    for (int end = head.indexOf('\n'); end >= 0; end = head.indexOf('\n', begin)) {
        const QByteArray line = head.mid(begin, end + 1 - begin);
        if (!line.trimmed().isEmpty())
            return line;
        begin = end + 1;
    }
    return head.mid(begin);
}

/// Returns true if every second byte of the first line, from `first` on, may be the zero of a
/// 16-bit character below 256, at least a quarter of all bytes are, and no other byte is zero.
bool hasZerosAt(const QByteArray &line, int first)
{
    int zeros = 0;
    for (int i = 0; i < line.size(); ++i) {
        if (line.at(i) != 0)
            continue;
        if (i % 2 != first)
            return false;
        ++zeros;
    }
    return zeros > 0 && 4 * zeros >= line.size();
}

QByteArray firstLine(const QByteArray &head)
{
    const int end = head.indexOf('\n');
    return end < 0 ? head : head.left(end);
}

bool isMarkedUtf16(const QByteArray &head)
{
    return head.startsWith("\xFF\xFE") || head.startsWith("\xFE\xFF");
}

/// The line break of a first line is followed by its zero byte.
bool isLittleEndianUtf16(const QByteArray &head)
{
    const QByteArray line = firstLine(head);
    const bool goesOn = head.size() > line.size() + 1;
    return line.size() % 2 == 0 && hasZerosAt(line, 1) &&
           (!goesOn || head.at(line.size() + 1) == 0);
}

/// The zero byte of its line break ends the first line.
bool isBigEndianUtf16(const QByteArray &head)
{
    const QByteArray line = firstLine(head);
    return hasZerosAt(line, 0) && (line.size() == head.size() || line.endsWith('\0'));
}

bool isSpreadsheet(const QByteArray &head)
{
    return head.startsWith("\xD0\xCF\x11\xE0");
}

/// The number of the version of a zip archive that follows its mark has a zero in its second byte.
bool isZipArchive(const QByteArray &head)
{
    return head.startsWith("PK\x03\x04") && head.size() > 5 && head.at(5) == 0;
}

bool isGzipFile(const QByteArray &head)
{
    return head.startsWith("\x1F\x8B");
}

const Format encodings[] = {
    {isMarkedUtf16,
     QT_TRANSLATE_NOOP("Runner", "text in UTF-16; expected UTF-8: convert it, for instance with "
                                 "\"iconv -f UTF-16 -t UTF-8\"")},
    {isZipArchive, QT_TRANSLATE_NOOP("Runner", "a zip archive, such as a spreadsheet (.xlsx); "
                                               "expected text: export the rows as text in UTF-8")},
    {isSpreadsheet, QT_TRANSLATE_NOOP("Runner", "a binary file, such as a spreadsheet (.xls); "
                                                "expected text: export the rows as text in UTF-8")},
    {isGzipFile, QT_TRANSLATE_NOOP("Runner", "a file compressed with gzip; expected text: "
                                             "decompress it, for instance with \"gzip -dc\"")},
    {isLittleEndianUtf16,
     QT_TRANSLATE_NOOP("Runner",
                       "looks like text in UTF-16 without a byte order mark; expected UTF-8: "
                       "convert it, for instance with \"iconv -f UTF-16LE -t UTF-8\"")},
    {isBigEndianUtf16,
     QT_TRANSLATE_NOOP("Runner",
                       "looks like text in UTF-16 without a byte order mark; expected UTF-8: "
                       "convert it, for instance with \"iconv -f UTF-16BE -t UTF-8\"")},
};

/// The innermost place of a JSON text at the end of its first line.
struct JsonScan
{
    int depth = 0;
    bool isInString = false;
    bool hasSeparator = false; ///< one that CSV has, outside strings
};

JsonScan scanned(const QByteArray &row)
{
    JsonScan scan;
    for (int i = 0; i < row.size(); ++i) {
        const char character = row.at(i);
        if (character == '"')
            scan.isInString = !scan.isInString;
        else if (scan.isInString)
            i += character == '\\' ? 1 : 0;
        else if (character == '{' || character == '[')
            ++scan.depth;
        else if (character == '}' || character == ']')
            --scan.depth;
        else if (character == ',' || character == ';' || character == '\t' || character == '|')
            scan.hasSeparator = true;
    }
    return scan;
}

bool isArray(const QByteArray &head)
{
    return firstRow(head).trimmed().startsWith('[');
}

/// Returns true if `text` is an object whose brackets all close.
bool isWholeObject(const QByteArray &text)
{
    return text.startsWith('{') && text.endsWith('}') && scanned(text).depth == 0;
}

/// Returns true if the first row is the beginning of an object that goes on in the next line. A
/// row that is cut off has a whole object behind it.
bool isBrokenObject(const QByteArray &head)
{
    const QByteArray row = firstRow(head);
    const QByteArray text = row.trimmed();
    // Without its line break the row may be cut off by the end of the head.
    if (!text.startsWith('{') || !row.endsWith('\n'))
        return false;
    const QByteArray next = firstRow(head, head.indexOf(row) + row.size()).trimmed();
    if (isWholeObject(next) || (next.isEmpty() && text.endsWith(',')))
        return false;
    const JsonScan scan = scanned(text);
    return scan.depth > 0 && !scan.isInString &&
           QByteArray("{[,").contains(text.at(text.size() - 1));
}

/// Returns true for a row that is meant as JSON, well formed or not. Such a row fails, and others
/// may be right.
bool isJson(const QByteArray &text)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber || text.startsWith('{') || text == "null" || text == "true" ||
           text == "false" ||
           (text.startsWith('"') && text.endsWith('"') && !scanned(text).hasSeparator);
}

bool isText(const QByteArray &head)
{
    const QByteArray text = firstRow(head).trimmed();
    return !text.isEmpty() && !text.contains('\0') && !isJson(text);
}

bool isCsv(const QByteArray &head)
{
    return isText(head) && scanned(firstRow(head)).hasSeparator;
}

const Format rowForms[] = {
    {isArray,
     QT_TRANSLATE_NOOP("Runner",
                       "looks like a JSON array; expected a JSON object on each line: convert it, "
                       "for instance with \"jq -c .[]\"")},
    {isBrokenObject,
     QT_TRANSLATE_NOOP("Runner",
                       "looks like a JSON object over several lines; expected a JSON object on "
                       "each line: convert it, for instance with \"jq -c .\"")},
    {isCsv, QT_TRANSLATE_NOOP("Runner",
                              "looks like CSV; expected a JSON object on each line: convert it, or "
                              "use \"--lines NAME\" to take each line as text")},
    {isText,
     QT_TRANSLATE_NOOP("Runner", "looks like plain text; expected a JSON object on each line: "
                                 "use \"--lines NAME\" to take each line as text")},
};

} // namespace

std::optional<Problem> findForeignEncoding(const QByteArray &head)
{
    return findFormat(std::begin(encodings), std::end(encodings), head);
}

std::optional<Problem> findForeignRows(const QByteArray &head)
{
    return findFormat(std::begin(rowForms), std::end(rowForms), head);
}
