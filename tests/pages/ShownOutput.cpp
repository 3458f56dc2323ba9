#include "tests/pages/ShownOutput.h"

#include <QRegularExpression>
#include <QVector>

namespace {

bool isGap(const QString &line)
{
    return line == "..." || line == "…";
}

/// Without what is another at each run or in each build.
QString steady(QString line)
{
    static const QRegularExpression time("(took|用时) [0-9.]+ (ns|µs|ms|s)");
    static const QRegularExpression version("\\b[0-9]+\\.[0-9]+\\.[0-9]+\\b");
    line.replace(time, "\\1 TIME");
    line.replace(version, "VERSION");
    return line;
}

QStringList steadyLines(const QStringList &lines)
{
    QStringList result;
    for (const QString &line : lines)
        result.append(steady(line));
    return result;
}

QStringList linesOf(QString printed)
{
    if (printed.endsWith('\n'))
        printed.chop(1);
    return printed.isEmpty() ? QStringList() : printed.split('\n');
}

/// The lines between the gaps; a page without a gap is a single piece.
QVector<QStringList> piecesOf(const QStringList &shown)
{
    QVector<QStringList> pieces(1);
    for (const QString &line : shown) {
        if (isGap(line))
            pieces.append(QStringList());
        else
            pieces.last().append(steady(line));
    }
    return pieces;
}

/// Where the piece stands in the lines from `from` on, -1 for nowhere.
int placeOf(const QStringList &piece, const QStringList &lines, int from)
{
    for (int place = from; place + piece.size() <= lines.size(); ++place) {
        if (lines.mid(place, piece.size()) == piece)
            return place;
    }
    return -1;
}

bool matches(const QVector<QStringList> &pieces, const QStringList &lines)
{
    if (pieces.size() == 1)
        return lines == pieces.first();
    if (placeOf(pieces.first(), lines, 0) != 0)
        return false;
    int next = pieces.first().size();
    for (int i = 1; i + 1 < pieces.size(); ++i) {
        const int place = placeOf(pieces.at(i), lines, next);
        if (place < 0)
            return false;
        next = place + pieces.at(i).size();
    }
    const int last = lines.size() - pieces.last().size();
    return last >= next && lines.mid(last) == pieces.last();
}

} // namespace

QString differenceToShown(const QStringList &shown, const QString &printed)
{
    const QStringList lines = linesOf(printed);
    if (matches(piecesOf(shown), steadyLines(lines)))
        return {};
    return "the page shows\n" + shown.join('\n') + "\nprinted is\n" + lines.join('\n');
}

bool showTrouble(const QStringList &shown)
{
    static const QRegularExpression trouble(
        "^(oprun|opworkbench): |^[0-9]+ findings?: |^发现 [0-9]+ 个问题|^(failed|crashed|timed out) ");
    return !shown.filter(trouble).isEmpty();
}
