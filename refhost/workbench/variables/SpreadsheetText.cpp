#include "refhost/workbench/variables/SpreadsheetText.h"

namespace {

constexpr QLatin1Char quote('"');

bool endsCell(QChar unit)
{
    return unit == QLatin1Char('\t') || unit == QLatin1Char('\n') || unit == QLatin1Char('\r');
}

/// Reads cell by cell.
class Reader
{
public:
    explicit Reader(const QString &text)
        : m_text(text)
    {
    }

    QVector<QStringList> rows()
    {
        QVector<QStringList> rows;
        while (m_next < m_text.size())
            rows.append(row());
        return rows;
    }

private:
    QStringList row()
    {
        QStringList cells{cell()};
        while (m_next < m_text.size() && m_text.at(m_next) == QLatin1Char('\t')) {
            ++m_next;
            cells.append(cell());
        }
        const bool isTwo = m_text.midRef(m_next, 2) == QLatin1String("\r\n");
        m_next += isTwo ? 2 : 1;
        return cells;
    }

    QString cell()
    {
        const int begin = m_next;
        if (begin < m_text.size() && m_text.at(begin) == quote) {
            QString quoted = quotedCell();
            if (m_next == m_text.size() || endsCell(m_text.at(m_next)))
                return quoted;
            m_next = begin; // quotes that are just part of the text
        }
        while (m_next < m_text.size() && !endsCell(m_text.at(m_next)))
            ++m_next;
        return m_text.mid(begin, m_next - begin);
    }

    /// Stops behind the closing quote; at the beginning when there is none.
    QString quotedCell()
    {
        QString content;
        int from = m_next + 1;
        for (;;) {
            const int end = m_text.indexOf(quote, from);
            if (end < 0)
                return {};
            content += m_text.midRef(from, end - from);
            const bool isDoubled = end + 1 < m_text.size() && m_text.at(end + 1) == quote;
            if (!isDoubled) {
                m_next = end + 1;
                return content;
            }
            content += quote;
            from = end + 2;
        }
    }

    const QString &m_text;
    int m_next = 0;
};

QString cellText(QString cell)
{
    bool needsQuotes = cell.startsWith(quote);
    for (const QChar unit : qAsConst(cell))
        needsQuotes |= endsCell(unit);
    if (!needsQuotes)
        return cell;
    cell.replace(quote, QLatin1String("\"\""));
    return quote + cell + quote;
}

} // namespace

QVector<QStringList> cellsOfText(const QString &text)
{
    return Reader(text).rows();
}

QString textOfCells(const QVector<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        QStringList cells;
        cells.reserve(row.size());
        for (const QString &cell : row)
            cells.append(cellText(cell));
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}
