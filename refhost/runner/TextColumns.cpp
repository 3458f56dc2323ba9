#include "refhost/runner/TextColumns.h"

#include <QVector>

#include <algorithm>
#include <iterator>

namespace {

struct Range
{
    uint first;
    uint last;
};

/// The blocks whose characters stand on two columns.
constexpr Range wideBlocks[] = {
    {0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0xA4CF}, {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};

int characterWidth(uint character)
{
    const QChar::Category category = QChar::category(character);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing)
        return 0;
    const bool wide = std::any_of(std::begin(wideBlocks), std::end(wideBlocks), [=](Range block) {
        return character >= block.first && character <= block.last;
    });
    return wide ? 2 : 1;
}

QVector<int> columnWidths(const QList<QStringList> &rows)
{
    QVector<int> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (int i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], displayWidth(row.at(i)));
    }
    return widths;
}

} // namespace

int displayWidth(const QString &text)
{
    int width = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters)
        width += characterWidth(character);
    return width;
}

QStringList alignColumns(const QList<QStringList> &rows)
{
    const QVector<int> widths = columnWidths(rows);
    QStringList lines;
    for (const QStringList &row : rows) {
        QString line;
        for (int i = 0; i < row.size(); ++i) {
            const int padding = widths.at(i) - displayWidth(row.at(i)) + 2;
            line += row.at(i) + QString(padding, QLatin1Char(' '));
        }
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        lines.append(line);
    }
    return lines;
}
