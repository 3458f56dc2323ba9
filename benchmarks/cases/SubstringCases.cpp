#include "benchmarks/cases/Cases.h"

namespace {

QVariant bare(const VariableScope &scope)
{
    const QString text = textIn(scope, QStringLiteral("sourceText"));
    const int start = numberIn(scope, QStringLiteral("startIndex"));
    return text.mid(start, numberIn(scope, QStringLiteral("charCount")));
}

Setup taking(SampleText &sample, int size, int start, int count)
{
    return Setup(VarType::String, bare)
        .text(QStringLiteral("sourceText"), sample.text(size))
        .number(QStringLiteral("startIndex"), start)
        .number(QStringLiteral("charCount"), count)
        .setting(QStringLiteral("lengthMode"), 1);
}

} // namespace

QVector<BenchmarkCase> substringCases()
{
    const QString type = QStringLiteral("text.substring");
    return {
        {type, QStringLiteral("middle half"),
         [](SampleText &sample, int size) { return taking(sample, size, size / 4, size / 2); }},
        {type, QStringLiteral("all but the first"),
         [](SampleText &sample, int size) { return taking(sample, size, 1, size - 1); }},
    };
}
