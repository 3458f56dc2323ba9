#include "refhost/runner/RepeatedLines.h"

#include "refhost/engine/Excerpt.h"
#include "refhost/runner/RunnerText.h"

namespace {

/// Returns the place behind the quotation that begins at `begin`, or the end of the line.
int endOfQuotation(const QString &line, int begin)
{
    for (int i = begin + 1; i < line.size(); ++i) {
        if (line.at(i) == QLatin1Char('\\'))
            ++i;
        else if (line.at(i) == QLatin1Char('"'))
            return i + 1;
    }
    return line.size();
}

int endOfNumber(const QString &line, int begin)
{
    int end = begin + 1;
    while (end < line.size() && (line.at(end).isDigit() || line.at(end) == QLatin1Char('.')))
        ++end;
    return end;
}

/// Returns the line with one mark for each quotation and each number.
QString withoutValues(const QString &line)
{
    QString kind;
    for (int i = 0; i < line.size();) {
        const QChar character = line.at(i);
        const bool isQuotation = character == QLatin1Char('"');
        const bool isNumber = character.isDigit();
        kind += isNumber ? QLatin1Char('0') : character;
        if (isQuotation)
            i = endOfQuotation(line, i);
        else
            i = isNumber ? endOfNumber(line, i) : i + 1;
    }
    return kind;
}

QString keyOf(int step, const QString &kind)
{
    return QString::number(step) + QLatin1Char(' ') + kind;
}

} // namespace

bool RepeatedLines::isShown(int step, const QString &line)
{
    return ++kindOf(step, line).count <= mostShown;
}

RepeatedLines::Kind &RepeatedLines::kindOf(int step, const QString &line)
{
    QString key = keyOf(step, withoutValues(line));
    if (!m_places.contains(key) && m_kindsOfSteps.value(step) >= mostKinds)
        key = keyOf(step, {});
    const auto found = m_places.constFind(key);
    if (found != m_places.constEnd())
        return m_kinds[*found];
    ++m_kindsOfSteps[step];
    m_places.insert(key, m_kinds.size());
    m_kinds.append({line, 0});
    return m_kinds.last();
}

QStringList RepeatedLines::rest() const
{
    QStringList lines;
    for (const Kind &kind : m_kinds) {
        if (kind.count > mostShown) {
            lines.append(RunnerText::tr("%1 more like this one: %2")
                             .arg(QString::number(kind.count - mostShown), excerpt(kind.first)));
        }
    }
    return lines;
}
