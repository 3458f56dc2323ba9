#include "benchmarks/cases/Cases.h"

#include <algorithm>

namespace {

QVariant bare(const VariableScope &scope)
{
    QString text = textIn(scope, QStringLiteral("sourceText"));
    const QString fill = textIn(scope, QStringLiteral("padText"));
    const int total = numberIn(scope, QStringLiteral("totalLength"));
    const int place = numberIn(scope, QStringLiteral("index"));
    const QString fitting = fill.left(std::max(0, total - text.size()));
    return text.insert(place, fitting);
}

/// Fills a text of half the size up to it.
Setup padding(SampleText &sample, int size, int position, int place, int fill)
{
    return Setup(VarType::String, bare)
        .text(QStringLiteral("sourceText"), sample.text(size / 2))
        .text(QStringLiteral("padText"), sample.text(fill))
        .number(QStringLiteral("totalLength"), size)
        .number(QStringLiteral("index"), place)
        .setting(QStringLiteral("position"), position);
}

} // namespace

QVector<BenchmarkCase> padCases()
{
    const QString type = QStringLiteral("text.pad");
    return {
        {type, QStringLiteral("equal halves, left"),
         [](SampleText &sample, int size) { return padding(sample, size, 0, 0, size / 2); }},
        {type, QStringLiteral("middle, fill cut"),
         [](SampleText &sample, int size) { return padding(sample, size, 1, size / 4, size); }},
    };
}
