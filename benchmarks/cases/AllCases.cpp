#include "benchmarks/cases/Cases.h"

QVector<BenchmarkCase> allCases()
{
    return appendCases() + substringCases() + padCases() + betweenCases() + trimCases() +
           reverseCases() + caseCases() + toNumberCases() + fromNumberCases() + joinCases() +
           splitCases() + findCases() + replaceCases();
}
