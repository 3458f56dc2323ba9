#include "benchmarks/cases/Cases.h"

namespace {

template <Qt::CaseSensitivity sensitivity>
QVariant bare(const VariableScope &scope)
{
    const QString text = textIn(scope, QStringLiteral("sourceText"));
    const QString start = textIn(scope, QStringLiteral("startMarker"));
    const QString stop = textIn(scope, QStringLiteral("endMarker"));
    const int marker = text.indexOf(start, 0, sensitivity);
    if (marker < 0)
        return QString();
    const int begin = marker + start.size();
    const int end = text.indexOf(stop, begin, sensitivity);
    return end < 0 ? QString() : text.mid(begin, end - begin);
}

Setup cutting(const QString &text, const QString &start, const QString &stop, bool ignoreCase)
{
    return Setup(VarType::String, ignoreCase ? bare<Qt::CaseInsensitive> : bare<Qt::CaseSensitive>)
        .text(QStringLiteral("sourceText"), text)
        .text(QStringLiteral("startMarker"), start)
        .text(QStringLiteral("endMarker"), stop)
        .setting(QStringLiteral("cutMode"), 2)
        .setting(QStringLiteral("ignoreCase"), ignoreCase);
}

/// A piece of half the text between two words that are no part of it otherwise.
Setup usual(SampleText &sample, int size, bool ignoreCase)
{
    const QString start = sample.letters(6);
    const QString stop = sample.letters(6);
    QString text = sample.text(size);
    text.replace(size / 4, start.size(), start);
    text.replace(size / 4 * 3, stop.size(), stop);
    return cutting(text, ignoreCase ? start.toUpper() : start, ignoreCase ? stop.toUpper() : stop,
                   ignoreCase);
}

/// The end marker nearly matches at every place.
Setup repetitive(const SampleText &sample, int size, int markerSize, bool ignoreCase)
{
    return cutting(sample.repetition(size), sample.repetition(1),
                   sample.repetitionBut(0, markerSize), ignoreCase)
        .gives(QString());
}

} // namespace

QVector<BenchmarkCase> betweenCases()
{
    const QString type = QStringLiteral("text.between");
    QVector<BenchmarkCase> cases;
    for (const bool ignoreCase : {false, true}) {
        const QString how = ignoreCase ? QStringLiteral(", ignoring case") : QString();
        cases.append({type, QStringLiteral("two markers") + how, [=](SampleText &sample, int size) {
                          return usual(sample, size, ignoreCase);
                      }});
        cases.append({type, QStringLiteral("repetitive") + how, [=](SampleText &sample, int size) {
                          return repetitive(sample, size, searchSize(size), ignoreCase);
                      }});
        const auto hard = [=](SampleText &sample, int size) {
            return repetitive(sample, size, longSearchSize(size), ignoreCase);
        };
        cases.append(BenchmarkCase(type, QStringLiteral("repetitive, long marker") + how, hard)
                         .growthOnly());
    }
    return cases;
}
