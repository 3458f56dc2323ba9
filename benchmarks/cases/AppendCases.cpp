#include "benchmarks/cases/Cases.h"

namespace {

QVariant bare(const VariableScope &scope)
{
    const QString source = textIn(scope, QStringLiteral("sourceText"));
    return QString(source + textIn(scope, QStringLiteral("appendText")));
}

/// `tail` units put behind so many that both are `size`.
Setup appending(SampleText &sample, int size, int tail)
{
    return Setup(VarType::String, bare)
        .text(QStringLiteral("sourceText"), sample.text(size - tail))
        .text(QStringLiteral("appendText"), sample.text(tail));
}

} // namespace

QVector<BenchmarkCase> appendCases()
{
    const QString type = QStringLiteral("text.append");
    return {
        {type, QStringLiteral("equal halves"),
         [](SampleText &sample, int size) { return appending(sample, size, size / 2); }},
        {type, QStringLiteral("short tail"),
         [](SampleText &sample, int size) { return appending(sample, size, 8); }},
    };
}
