#include "benchmarks/Table.h"

#include "benchmarks/BenchmarkCase.h"

#include <QStringList>

namespace {

constexpr int typeWidth = 16;
constexpr int nameWidth = 46;
constexpr int alphabetWidth = 9;
constexpr int figureWidth = 10;

/// How many of the lines that miss a target are named.
constexpr int namedMisses = 10;

QString sizeText(int size)
{
    if (size % (1024 * 1024) == 0)
        return QStringLiteral("%1 Mi").arg(size / (1024 * 1024));
    if (size % 1024 == 0)
        return QStringLiteral("%1 Ki").arg(size / 1024);
    return QString::number(size);
}

/// Three digits and a unit.
QString timeText(double nanoseconds)
{
    static const QStringList units{QStringLiteral(" ns"), QStringLiteral(" us"),
                                   QStringLiteral(" ms"), QStringLiteral(" s")};
    double time = nanoseconds;
    int unit = 0;
    for (; time >= 999.5 && unit + 1 < units.size(); ++unit)
        time /= 1000.0;
    const int decimals = time < 10.0 ? 2 : (time < 100.0 ? 1 : 0);
    return QString::number(time, 'f', decimals) + units.at(unit);
}

QString ratioText(double ratio)
{
    return QString::number(ratio, 'f', ratio < 100.0 ? 2 : 0);
}

QString cell(const QString &text)
{
    return text.rightJustified(figureWidth);
}

QString row(const QString &typeId, const QString &name, const QString &alphabet,
            const QStringList &figures)
{
    QString line = typeId.leftJustified(typeWidth) + name.leftJustified(nameWidth) +
                   alphabet.leftJustified(alphabetWidth);
    for (const QString &figure : figures)
        line += cell(figure);
    return line;
}

QString row(const Subject &subject, const QStringList &figures)
{
    return row(subject.typeId, subject.name, alphabetName(subject.alphabet), figures);
}

QString head(const QStringList &figures)
{
    return row(QStringLiteral("operation"), QStringLiteral("case"), QStringLiteral("text"),
               figures);
}

} // namespace

QString comparisonHead()
{
    return head({QStringLiteral("units"), QStringLiteral("step"), QStringLiteral("Qt"),
                 QStringLiteral("copy"), QStringLiteral("step/Qt"), QStringLiteral("step/copy")});
}

QString comparisonLine(const Comparison &comparison)
{
    return row(comparison.subject,
               {sizeText(comparison.size), timeText(comparison.step), timeText(comparison.bare),
                timeText(comparison.copy), ratioText(comparison.toBare()),
                ratioText(comparison.toCopy())});
}

QString growthHead()
{
    QStringList figures{QStringLiteral("doubling")};
    for (const int size : growthSizes)
        figures.append(sizeText(size));
    return head(figures);
}

QString growthLine(const Growth &growth)
{
    QStringList figures{ratioText(growth.ratioPerDoubling())};
    for (const Growth::Point &point : growth.points)
        figures.append(timeText(point.time));
    return row(growth.subject, figures);
}

QString targetLines(const Target &target)
{
    const int missed = target.misses.size();
    const QString verdict =
        missed == 0 ? QStringLiteral("met by all %1").arg(target.judged)
                    : QStringLiteral("MISSED by %1 of %2").arg(missed).arg(target.judged);
    QString lines = QStringLiteral("%1: %2\n").arg(target.name, verdict);
    for (const Target::Miss &miss : target.misses.mid(0, namedMisses)) {
        lines += QStringLiteral("    ") +
                 row(miss.subject, {sizeText(miss.size), ratioText(miss.value)}) +
                 QLatin1Char('\n');
    }
    if (missed > namedMisses)
        lines += QStringLiteral("    and %1 more\n").arg(missed - namedMisses);
    return lines;
}
