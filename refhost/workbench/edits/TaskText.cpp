#include "refhost/workbench/edits/TaskText.h"

#include "refhost/engine/JsonReader.h"
#include "refhost/engine/TaskReader.h"

#include "Operation.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr ushort byteOrderMark = 0xfeff;
constexpr ushort zeroWidthSpace = 0x200b;

bool isBlank(QChar unit)
{
    return unit.isSpace() || unit == QChar(byteOrderMark) || unit == QChar(zeroWidthSpace);
}

int firstNonBlank(const QString &line)
{
    const auto *const found =
        std::find_if(line.cbegin(), line.cend(), [](QChar unit) { return !isBlank(unit); });
    return static_cast<int>(found - line.cbegin());
}

/// Lines `first` to `last` of the text; what else is in it becomes empty lines.
void keepLines(QStringList &lines, int first, int last)
{
    for (int i = 0; i < lines.size(); ++i) {
        if (i < first || i > last)
            lines[i].clear();
    }
}

/// Puts spaces in place of the signs of quotation before a line; whether there were any.
bool unquote(QString &line)
{
    int end = firstNonBlank(line);
    const int begin = end;
    for (int i = begin; i < line.size(); ++i) {
        if (line.at(i) == QLatin1Char('>'))
            end = i + 1;
        else if (!isBlank(line.at(i)))
            break;
    }
    line.replace(0, end, QString(end, QLatin1Char(' ')));
    return end > begin;
}

/// The signs that open a fence on this line, such as "```"; empty when it opens none.
QString fenceOf(const QString &line)
{
    const QString content = line.mid(firstNonBlank(line));
    for (const QChar sign : {QLatin1Char('`'), QLatin1Char('~')}) {
        int size = 0;
        while (size < content.size() && content.at(size) == sign)
            ++size;
        // With such a sign later on it is code within a line.
        if (size >= 3 && !content.mid(size).contains(sign))
            return content.left(size);
    }
    return {};
}

/// The first line after `opening` that closes its fence; one behind the last when none does.
int closingLine(const QStringList &lines, int opening)
{
    const QString fence = fenceOf(lines.at(opening));
    for (int i = opening + 1; i < lines.size(); ++i) {
        if (fenceOf(lines.at(i)).startsWith(fence))
            return i;
    }
    return lines.size();
}

bool beginsAsJson(const QStringList &lines, int first, int last)
{
    for (int i = first; i <= last; ++i) {
        const QString content = lines.at(i).mid(firstNonBlank(lines.at(i)));
        if (!content.isEmpty())
            return content.startsWith(QLatin1Char('{')) || content.startsWith(QLatin1Char('['));
    }
    return false;
}

/// Keeps what is in the first fence around something that looks like JSON; whether there is one.
bool keepFenced(QStringList &lines)
{
    for (int i = 0; i < lines.size(); ++i) {
        if (fenceOf(lines.at(i)).isEmpty())
            continue;
        const int closing = closingLine(lines, i);
        if (beginsAsJson(lines, i + 1, closing - 1)) {
            keepLines(lines, i + 1, closing - 1);
            return true;
        }
        i = closing;
    }
    return false;
}

/// Code within a line: the signs around the whole text give way to spaces.
void dropCodeSigns(QString &text)
{
    const auto isSign = [](QChar unit) { return unit == QLatin1Char('`') || isBlank(unit); };
    const auto blank = [](QChar &unit) {
        if (unit == QLatin1Char('`'))
            unit = QLatin1Char(' ');
    };
    auto *const first = std::find_if_not(text.begin(), text.end(), isSign);
    std::for_each(text.begin(), first, blank);
    for (auto *unit = text.end(); unit != first && isSign(*(unit - 1)); --unit)
        blank(*(unit - 1));
}

/// Makes plain spaces of all blank characters between the tokens, where JSON knows no others. What
/// is within a JSON string stays.
QString withPlainSpaces(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    bool inString = false;
    bool escaped = false;
    for (const QChar unit : text) {
        if (!inString && unit != QLatin1Char('\n') && isBlank(unit))
            plain += QLatin1Char(' ');
        else
            plain += unit;
        if (unit == QLatin1Char('"') && !escaped)
            inString = !inString;
        escaped = inString && !escaped && unit == QLatin1Char('\\');
    }
    return plain;
}

/// A list of steps or a single step as the task they make up.
Result<JsonObject> taskObject(const QByteArray &json)
{
    const QString stepsKey = QStringLiteral("steps");
    const Result<JsonValue> value = parseJson(json);
    if (value && value.value().isArray())
        return JsonObject{{stepsKey, value.value()}};
    Result<JsonObject> object = parseJsonObject(json, {});
    if (object && object.value().contains(QStringLiteral("type")) &&
        !object.value().contains(stepsKey))
        return JsonObject{{stepsKey, JsonArray{object.value()}}};
    return object;
}

} // namespace

QString bareTaskText(const QString &text)
{
    QString broken = text;
    broken.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    broken.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    QStringList lines = broken.split(QLatin1Char('\n'));
    int firstQuoted = -1;
    int lastQuoted = -1;
    for (int i = 0; i < lines.size(); ++i) {
        if (!unquote(lines[i]))
            continue;
        firstQuoted = firstQuoted < 0 ? i : firstQuoted;
        lastQuoted = i;
    }
    if (!keepFenced(lines) && firstQuoted >= 0)
        keepLines(lines, firstQuoted, lastQuoted);
    QString bare = lines.join(QLatin1Char('\n'));
    dropCodeSigns(bare);
    return withPlainSpaces(bare);
}

Result<Task> taskFromText(const QString &text, const OperationCatalog &catalog)
{
    const Result<JsonObject> json = taskObject(bareTaskText(text).toUtf8());
    if (!json)
        return json.problem();
    return TaskReader(catalog).read(json.value());
}
