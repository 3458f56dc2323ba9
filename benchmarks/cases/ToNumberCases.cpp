#include "benchmarks/cases/Cases.h"

namespace {

QVariant bare(const VariableScope &scope)
{
    return textIn(scope, QStringLiteral("sourceText")).toDouble();
}

Setup reading(const QString &text)
{
    return Setup(VarType::Double, bare).text(QStringLiteral("sourceText"), text);
}

/// A short number with white space around it.
QString framedNumber(int size)
{
    const QString number = QStringLiteral("-12345.678");
    return number.rightJustified((size + number.size()) / 2).leftJustified(size);
}

QString longFraction(int size)
{
    return QStringLiteral("0.") + QStringLiteral("1234567").repeated(size / 7 + 1).left(size - 2);
}

} // namespace

QVector<BenchmarkCase> toNumberCases()
{
    const QString type = QStringLiteral("text.toNumber");
    return {
        BenchmarkCase(type, QStringLiteral("short number in white space"),
                      [](SampleText &, int size) { return reading(framedNumber(size)); })
            .asciiOnly(),
        BenchmarkCase(type, QStringLiteral("digits"),
                      [](SampleText &, int size) { return reading(longFraction(size)); })
            .asciiOnly(),
    };
}
