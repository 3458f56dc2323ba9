#include "benchmarks/cases/Cases.h"

#include <QLocale>

namespace {

QVariant barePlain(const VariableScope &scope)
{
    const double number = scope.get(QStringLiteral("value")).toDouble();
    return QString::number(number, 'f', numberIn(scope, QStringLiteral("decimals")));
}

QVariant bareGrouped(const VariableScope &scope)
{
    const double number = scope.get(QStringLiteral("value")).toDouble();
    return QLocale().toString(number, 'f', numberIn(scope, QStringLiteral("decimals")));
}

Setup formatting(double number, int decimals, bool useGrouping)
{
    return Setup(VarType::String, useGrouping ? bareGrouped : barePlain)
        .operand(QStringLiteral("value"), VarType::Double, number)
        .number(QStringLiteral("decimals"), decimals)
        .setting(QStringLiteral("useGrouping"), useGrouping);
}

/// The units before the decimals of the two numbers below, the point and the separators included.
/// At the small size two decimals remain.
constexpr int wholeUnits = 30;
constexpr double plainNumber = 1.2345678901234567e28;
constexpr double groupedNumber = 1.2345678901234567e21;

} // namespace

QVector<BenchmarkCase> fromNumberCases()
{
    const QString type = QStringLiteral("text.fromNumber");
    const auto plain = [](SampleText &, int size) {
        return formatting(plainNumber, size - wholeUnits, false);
    };
    const auto grouped = [](SampleText &, int size) {
        return formatting(groupedNumber, size - wholeUnits, true);
    };
    constexpr int thousandDecimals = wholeUnits + 1000;
    return {
        BenchmarkCase(type, QStringLiteral("plain"), plain).asciiOnly(),
        BenchmarkCase(type, QStringLiteral("plain, 1000 decimals"), plain)
            .asciiOnly()
            .onlyAt(thousandDecimals),
        BenchmarkCase(type, QStringLiteral("grouped"), grouped).asciiOnly(),
        BenchmarkCase(type, QStringLiteral("grouped, 1000 decimals"), grouped)
            .asciiOnly()
            .onlyAt(thousandDecimals),
    };
}
