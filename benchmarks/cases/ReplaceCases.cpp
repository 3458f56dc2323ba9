#include "benchmarks/cases/Cases.h"

#include <algorithm>

namespace {

template <Qt::CaseSensitivity sensitivity>
QVariant bare(const VariableScope &scope)
{
    QString text = textIn(scope, QStringLiteral("sourceText"));
    const QString search = textIn(scope, QStringLiteral("oldText"));
    return text.replace(search, textIn(scope, QStringLiteral("newText")), sensitivity);
}

QVariant bareFirst(const VariableScope &scope)
{
    QString text = textIn(scope, QStringLiteral("sourceText"));
    const QString search = textIn(scope, QStringLiteral("oldText"));
    const QString replacement = textIn(scope, QStringLiteral("newText"));
    const int position = text.indexOf(search);
    if (position >= 0)
        text.replace(position, search.size(), replacement);
    return text;
}

Setup replacing(const QString &text, const QString &search, const QString &replacement,
                BareWork work = bare<Qt::CaseSensitive>)
{
    return Setup(VarType::String, work)
        .text(QStringLiteral("sourceText"), text)
        .text(QStringLiteral("oldText"), search)
        .text(QStringLiteral("newText"), replacement)
        .setting(QStringLiteral("ignoreCase"), work == bare<Qt::CaseInsensitive>)
        .setting(QStringLiteral("replaceScope"), work == bareFirst ? 1 : 0);
}

/// A word of eight units, found every 64 units of ordinary text.
Setup replacingWord(SampleText &sample, int size, int newSize)
{
    const QString word = sample.letters(8);
    const QString text = sample.textWith(word, std::min(64, size / 2), size);
    return replacing(text, word, sample.letters(newSize));
}

Setup replacingIgnoringCase(SampleText &sample, int size)
{
    const QString word = sample.letters(8);
    const QString text = sample.textWith(word, std::min(64, size / 2), size);
    return replacing(text, word.toUpper(), sample.letters(12), bare<Qt::CaseInsensitive>);
}

Setup replacingFirst(SampleText &sample, int size)
{
    const QString word = sample.letters(8);
    QString text = sample.text(size);
    text.replace(size - size / 16 - word.size(), word.size(), word);
    return replacing(text, word, sample.letters(12), bareFirst);
}

/// Every second unit is one to replace.
Setup replacingDense(SampleText &sample, int size, int newSize)
{
    const QString text = sample.textWith(sample.separator(), 2, size);
    return replacing(text, sample.separator(), sample.letters(newSize));
}

/// The search text nearly matches at every place.
Setup replacingInRepetition(const SampleText &sample, int size, int searchSize, BareWork work)
{
    const QString text = sample.repetition(size);
    return replacing(text, sample.repetitionBut(0, searchSize), QString(), work).gives(text);
}

QVector<BenchmarkCase> wordCases(const QString &type)
{
    const auto same = [](SampleText &sample, int size) { return replacingWord(sample, size, 8); };
    const auto longer = [](SampleText &sample, int size) {
        return replacingWord(sample, size, 12);
    };
    const auto shorter = [](SampleText &sample, int size) {
        return replacingWord(sample, size, 4);
    };
    const auto absent = [](SampleText &sample, int size) {
        return replacing(sample.text(size), sample.absentText(), sample.letters(5));
    };
    return {
        {type, QStringLiteral("words, same length"), same},
        BenchmarkCase(type, QStringLiteral("words, longer"), longer).beatingQt(),
        BenchmarkCase(type, QStringLiteral("words, shorter"), shorter).beatingQt(),
        BenchmarkCase(type, QStringLiteral("words, longer, ignoring case"), replacingIgnoringCase)
            .beatingQt(),
        {type, QStringLiteral("first only"), replacingFirst},
        {type, QStringLiteral("absent"), absent},
    };
}

QVector<BenchmarkCase> denseCases(const QString &type)
{
    const auto longer = [](SampleText &sample, int size) {
        return replacingDense(sample, size, 2);
    };
    const auto shorter = [](SampleText &sample, int size) {
        return replacingDense(sample, size, 0);
    };
    return {
        BenchmarkCase(type, QStringLiteral("dense, longer"), longer).beatingQt(),
        BenchmarkCase(type, QStringLiteral("dense, shorter"), shorter).beatingQt(),
        BenchmarkCase(type, QStringLiteral("dense, longer"), longer)
            .onlyAt(hugeSize)
            .asciiOnly()
            .beatingQt(),
        BenchmarkCase(type, QStringLiteral("dense, shorter"), shorter)
            .onlyAt(hugeSize)
            .asciiOnly()
            .beatingQt(),
    };
}

QVector<BenchmarkCase> repetitiveCases(const QString &type, bool ignoreCase)
{
    const QString how = ignoreCase ? QStringLiteral(", ignoring case") : QString();
    const BareWork work = ignoreCase ? bare<Qt::CaseInsensitive> : bare<Qt::CaseSensitive>;
    const auto hard = [=](SampleText &sample, int size) {
        return replacingInRepetition(sample, size, searchSize(size), work);
    };
    const auto harder = [=](SampleText &sample, int size) {
        return replacingInRepetition(sample, size, longSearchSize(size), work);
    };
    return {
        {type, QStringLiteral("repetitive") + how, hard},
        BenchmarkCase(type, QStringLiteral("repetitive, long") + how, harder).growthOnly(),
    };
}

} // namespace

QVector<BenchmarkCase> replaceCases()
{
    const QString type = QStringLiteral("text.replace");
    return wordCases(type) + denseCases(type) + repetitiveCases(type, false) +
           repetitiveCases(type, true);
}
