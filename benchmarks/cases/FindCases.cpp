#include "benchmarks/cases/Cases.h"

namespace {

template <Qt::CaseSensitivity sensitivity>
QVariant bare(const VariableScope &scope)
{
    const QString text = textIn(scope, QStringLiteral("sourceText"));
    return text.indexOf(textIn(scope, QStringLiteral("searchText")), 0, sensitivity);
}

Setup finding(const QString &text, const QString &search, bool ignoreCase)
{
    return Setup(VarType::Int, ignoreCase ? bare<Qt::CaseInsensitive> : bare<Qt::CaseSensitive>)
        .text(QStringLiteral("sourceText"), text)
        .text(QStringLiteral("searchText"), search)
        .setting(QStringLiteral("ignoreCase"), ignoreCase);
}

/// A word that is near the end of the text and nowhere else.
Setup findingWord(SampleText &sample, int size, bool ignoreCase)
{
    const QString word = sample.letters(8);
    QString text = sample.text(size);
    text.replace(size - size / 16 - word.size(), word.size(), word);
    return finding(text, ignoreCase ? word.toUpper() : word, ignoreCase);
}

Setup findingAbsent(SampleText &sample, int size, bool ignoreCase)
{
    const QString absent = sample.absentText();
    return finding(sample.text(size), ignoreCase ? absent.toUpper() : absent, ignoreCase);
}

/// A search text that is one letter away from matching everywhere: its first or its middle one.
Setup findingInRepetition(const SampleText &sample, int size, int searchSize, bool oddFirst,
                          bool ignoreCase)
{
    const int odd = oddFirst ? 0 : searchSize / 2;
    return finding(sample.repetition(size), sample.repetitionBut(odd, searchSize), ignoreCase)
        .gives(-1);
}

QVector<BenchmarkCase> repetitiveCases(const QString &type, bool oddFirst, bool ignoreCase)
{
    const QString name = oddFirst ? QStringLiteral("repetitive, odd first")
                                  : QStringLiteral("repetitive, odd middle");
    const QString how = ignoreCase ? QStringLiteral(", ignoring case") : QString();
    const auto hard = [=](SampleText &sample, int size) {
        return findingInRepetition(sample, size, searchSize(size), oddFirst, ignoreCase);
    };
    const auto harder = [=](SampleText &sample, int size) {
        return findingInRepetition(sample, size, longSearchSize(size), oddFirst, ignoreCase);
    };
    return {{type, name + how, hard},
            BenchmarkCase(type, name + QStringLiteral(", long") + how, harder).growthOnly()};
}

} // namespace

QVector<BenchmarkCase> findCases()
{
    const QString type = QStringLiteral("text.find");
    QVector<BenchmarkCase> cases;
    for (const bool ignoreCase : {false, true}) {
        const QString how = ignoreCase ? QStringLiteral(", ignoring case") : QString();
        cases.append(
            {type, QStringLiteral("word near the end") + how,
             [=](SampleText &sample, int size) { return findingWord(sample, size, ignoreCase); }});
        const auto absent = [=](SampleText &sample, int size) {
            return findingAbsent(sample, size, ignoreCase);
        };
        cases.append(BenchmarkCase(type, QStringLiteral("short absent") + how, absent).beatingQt());
        cases += repetitiveCases(type, true, ignoreCase);
        cases += repetitiveCases(type, false, ignoreCase);
    }
    return cases;
}
