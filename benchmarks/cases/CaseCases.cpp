#include "benchmarks/cases/Cases.h"

namespace {

QVariant bareUpper(const VariableScope &scope)
{
    return textIn(scope, QStringLiteral("sourceText")).toUpper();
}

QVariant bareLower(const VariableScope &scope)
{
    return textIn(scope, QStringLiteral("sourceText")).toLower();
}

QVariant bareCapitalFirst(const VariableScope &scope)
{
    QString text = textIn(scope, QStringLiteral("sourceText")).toLower();
    if (!text.isEmpty())
        text[0] = text.at(0).toUpper();
    return text;
}

/// Converts in the numbered mode of the operation.
Setup converting(const QString &text, int mode)
{
    static constexpr BareWork bare[] = {bareUpper, bareLower, bareCapitalFirst};
    return Setup(VarType::String, bare[mode])
        .text(QStringLiteral("sourceText"), text)
        .setting(QStringLiteral("mode"), mode);
}

} // namespace

QVector<BenchmarkCase> caseCases()
{
    const QString type = QStringLiteral("text.case");
    return {
        {type, QStringLiteral("upper"),
         [](SampleText &sample, int size) { return converting(sample.text(size), 0); }},
        {type, QStringLiteral("lower"),
         [](SampleText &sample, int size) { return converting(sample.text(size), 1); }},
        {type, QStringLiteral("capital first"),
         [](SampleText &sample, int size) { return converting(sample.text(size), 2); }},
        {type, QStringLiteral("upper, growing"),
         [](SampleText &sample, int size) {
             return converting(sample.textWith(QStringLiteral("ß"), 16, size), 0);
         }},
    };
}
