#include "tests/pages/PageReader.h"

#include <QRegularExpression>

namespace {

/// Lines of a page, from the first of a block on.
class BlockLines
{
public:
    explicit BlockLines(const QString &text)
        : m_lines(text.split('\n'))
    {
    }

    bool atEnd() const { return m_next >= m_lines.size(); }
    QString next() { return m_lines.at(m_next++); }
    QString peek() const { return m_lines.value(m_next); }
    int number() const { return m_next; } ///< of the line given last, counted from 1

private:
    QStringList m_lines;
    int m_next = 0;
};

/// A line with those that a backslash joins to it, without `indent` blanks before each.
QString wholeCommand(BlockLines &lines, QString command, int indent)
{
    while (command.endsWith('\\') && !lines.atEnd())
        command += '\n' + lines.next().mid(indent);
    return command;
}

bool isCommand(const QString &line)
{
    return !line.trimmed().isEmpty() && !line.startsWith('#');
}

void readConsole(BlockLines &lines, int indent, QVector<PageCommand> &commands)
{
    bool begun = false;
    while (!lines.atEnd()) {
        const QString line = lines.next().mid(indent);
        if (line.startsWith("```"))
            return;
        if (line.startsWith("$ ")) {
            const int number = lines.number();
            commands.append({number, wholeCommand(lines, line.mid(2), indent), true, true, {}});
            begun = true;
        } else if (begun) {
            commands.last().shown.append(line);
        }
    }
}

/// Lines of commands alone, as long as `belongs` says so.
template <typename Belongs>
void readLines(BlockLines &lines, int indent, Belongs belongs, QVector<PageCommand> &commands)
{
    while (!lines.atEnd() && belongs(lines.peek())) {
        const QString line = lines.next().mid(indent);
        const int number = lines.number();
        if (isCommand(line))
            commands.append({number, wholeCommand(lines, line, indent), false, false, {}});
    }
}

/// The block behind its fence, which is read to its end.
void readFenced(BlockLines &lines, const QRegularExpressionMatch &fence,
                QVector<PageCommand> &commands)
{
    const int indent = fence.capturedLength(1);
    const auto inside = [](const QString &line) { return !line.trimmed().startsWith("```"); };
    if (fence.captured(2) == "console") {
        readConsole(lines, indent, commands);
        return;
    }
    QVector<PageCommand> found;
    readLines(lines, indent, inside, found);
    for (PageCommand &command : found)
        command.inFence = true;
    if (fence.captured(2) == "sh")
        commands += found;
    if (!lines.atEnd())
        lines.next();
}

} // namespace

QVector<PageCommand> commandsOfPage(const QString &text)
{
    static const QRegularExpression fence("^( *)```\\s*(\\w*)");
    static const QRegularExpression listItem("^ {0,3}([-*+]|\\d+[.)])\\s");
    constexpr int codeIndent = 4;
    const auto isIndented = [](const QString &line) { return line.startsWith("    "); };
    QVector<PageCommand> commands;
    BlockLines lines(text);
    bool inList = false;
    bool afterBlank = true;
    while (!lines.atEnd()) {
        if (afterBlank && !inList && isIndented(lines.peek()))
            readLines(lines, codeIndent, isIndented, commands);
        if (lines.atEnd())
            break;
        const QString line = lines.next();
        const QRegularExpressionMatch opening = fence.match(line);
        if (opening.hasMatch())
            readFenced(lines, opening, commands);
        if (listItem.match(line).hasMatch())
            inList = true;
        else if (!line.isEmpty() && !line.startsWith(' '))
            inList = false;
        afterBlank = line.isEmpty();
    }
    return commands;
}

QVector<PageCommand> commandsOfManual(const QString &text)
{
    const auto inside = [](const QString &line) { return line != ".fi"; };
    QString plain = text;
    plain.replace("\\-", "-");
    QVector<PageCommand> commands;
    BlockLines lines(plain);
    while (!lines.atEnd()) {
        if (lines.next() == ".nf")
            readLines(lines, 0, inside, commands);
    }
    return commands;
}
