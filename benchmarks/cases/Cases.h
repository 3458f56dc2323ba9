#pragma once

#include "benchmarks/BenchmarkCase.h"

#include "VariableScope.h"

#include <QString>
#include <QVector>

#include <cmath>

// What is measured of each operation. The bare work beside each case is the definition of the
// operation in terms of Qt: the operands out of the scope, and Qt's own facility.

QVector<BenchmarkCase> appendCases();
QVector<BenchmarkCase> substringCases();
QVector<BenchmarkCase> padCases();
QVector<BenchmarkCase> betweenCases();
QVector<BenchmarkCase> trimCases();
QVector<BenchmarkCase> reverseCases();
QVector<BenchmarkCase> caseCases();
QVector<BenchmarkCase> toNumberCases();
QVector<BenchmarkCase> fromNumberCases();
QVector<BenchmarkCase> joinCases();
QVector<BenchmarkCase> splitCases();
QVector<BenchmarkCase> findCases();
QVector<BenchmarkCase> replaceCases();

/// The cases of all operations.
QVector<BenchmarkCase> allCases();

/// An operand as text, as the scope has it.
inline QString textIn(const VariableScope &scope, const QString &name)
{
    return scope.get(name).toString();
}

/// An operand as a whole number.
inline int numberIn(const VariableScope &scope, const QString &name)
{
    return scope.get(name).toInt();
}

/// The size of a hard search text: it grows with the text, so that a search whose work is the
/// product of both shows, and Qt still finds an end with the largest text.
inline int searchSize(int textSize)
{
    return static_cast<int>(std::sqrt(textSize));
}

/// The size of a harder one, in proportion to the text: too much for Qt.
inline int longSearchSize(int textSize)
{
    return textSize / 64;
}
