#include "benchmarks/cases/Cases.h"

#include <algorithm>

namespace {

QVariant bare(const VariableScope &scope)
{
    QString text = textIn(scope, QStringLiteral("sourceText"));
    std::reverse(text.begin(), text.end());
    return text;
}

} // namespace

QVector<BenchmarkCase> reverseCases()
{
    return {{QStringLiteral("text.reverse"), QStringLiteral("ordinary text"),
             [](SampleText &sample, int size) {
                 return Setup(VarType::String, bare)
                     .text(QStringLiteral("sourceText"), sample.text(size));
             }}};
}
