#include "benchmarks/cases/Cases.h"

#include <algorithm>
#include <iterator>

namespace {

bool isSpace(QChar unit)
{
    return unit.isSpace();
}

/// Qt trims both ends only; one end alone is the same search for the first unit to keep.
QVariant bareStart(const VariableScope &scope)
{
    const QString text = textIn(scope, QStringLiteral("sourceText"));
    const auto begin = std::find_if_not(text.cbegin(), text.cend(), isSpace);
    return text.mid(static_cast<int>(begin - text.cbegin()));
}

QVariant bareEnd(const VariableScope &scope)
{
    const QString text = textIn(scope, QStringLiteral("sourceText"));
    const auto end = std::find_if_not(text.crbegin(), text.crend(), isSpace);
    return text.left(static_cast<int>(text.crend() - end));
}

QVariant bareBothEnds(const VariableScope &scope)
{
    return textIn(scope, QStringLiteral("sourceText")).trimmed();
}

QVariant bareEverywhere(const VariableScope &scope)
{
    const QString text = textIn(scope, QStringLiteral("sourceText"));
    QString kept;
    kept.reserve(text.size());
    for (const QChar unit : text) {
        if (!unit.isSpace())
            kept += unit;
    }
    return kept;
}

/// Trims in the numbered mode of the operation.
Setup trimming(const QString &text, int mode)
{
    static constexpr BareWork bare[] = {bareStart, bareEnd, bareBothEnds, bareEverywhere};
    return Setup(VarType::String, bare[mode])
        .text(QStringLiteral("sourceText"), text)
        .setting(QStringLiteral("mode"), mode);
}

QString spaces(int size)
{
    return QString(size, QLatin1Char(' '));
}

/// Ordinary text with an eighth of white space at each end.
QString framed(SampleText &sample, int size)
{
    const QString space = spaces(size / 8);
    return space + sample.text(size - 2 * space.size()) + space;
}

/// Letters with a space every six units.
QString spaced(SampleText &sample, int size)
{
    QString text = sample.letters(size);
    for (int i = 5; i < size; i += 6)
        text[i] = QLatin1Char(' ');
    return text;
}

} // namespace

QVector<BenchmarkCase> trimCases()
{
    const QString type = QStringLiteral("text.trim");
    return {
        {type, QStringLiteral("start"),
         [](SampleText &sample, int size) { return trimming(framed(sample, size), 0); }},
        {type, QStringLiteral("end"),
         [](SampleText &sample, int size) { return trimming(framed(sample, size), 1); }},
        {type, QStringLiteral("both ends"),
         [](SampleText &sample, int size) { return trimming(framed(sample, size), 2); }},
        {type, QStringLiteral("both ends, nothing to trim"),
         [](SampleText &sample, int size) { return trimming(sample.text(size), 2); }},
        BenchmarkCase(type, QStringLiteral("both ends, all white space"),
                      [](SampleText &, int size) { return trimming(spaces(size), 2); })
            .asciiOnly(),
        {type, QStringLiteral("everywhere"),
         [](SampleText &sample, int size) { return trimming(spaced(sample, size), 3); }},
    };
}
