#include "benchmarks/cases/Cases.h"

#include <QStringList>
#include <QVariantList>

namespace {

QVariant bareByWidth(const VariableScope &scope)
{
    const QString text = textIn(scope, QStringLiteral("sourceText"));
    const int width = numberIn(scope, QStringLiteral("width"));
    QVariantList pieces;
    for (int i = 0; i < text.size(); i += width)
        pieces.append(text.mid(i, width));
    return pieces;
}

QVariant bareBySeparator(const VariableScope &scope)
{
    const QString text = textIn(scope, QStringLiteral("sourceText"));
    const QStringList parts = text.split(textIn(scope, QStringLiteral("separator")));
    QVariantList pieces;
    for (const QString &part : parts)
        pieces.append(part);
    return pieces;
}

Setup splitting(const QString &text, const QString &separator)
{
    return Setup(VarType::List, bareBySeparator)
        .text(QStringLiteral("sourceText"), text)
        .text(QStringLiteral("separator"), separator)
        .setting(QStringLiteral("splitMode"), 1);
}

Setup splittingByWidth(const QString &text, int width)
{
    return Setup(VarType::List, bareByWidth)
        .text(QStringLiteral("sourceText"), text)
        .number(QStringLiteral("width"), width)
        .setting(QStringLiteral("splitMode"), 0);
}

/// The separator nearly matches at every place.
Setup repetitive(const SampleText &sample, int size, int separatorSize)
{
    const QString text = sample.repetition(size);
    return splitting(text, sample.repetitionBut(0, separatorSize)).gives(QVariantList{text});
}

QVector<BenchmarkCase> widthCases(const QString &type)
{
    return {
        {type, QStringLiteral("width 8"),
         [](SampleText &sample, int size) { return splittingByWidth(sample.text(size), 8); }},
        {type, QStringLiteral("width 1"),
         [](SampleText &sample, int size) { return splittingByWidth(sample.text(size), 1); }},
    };
}

} // namespace

QVector<BenchmarkCase> splitCases()
{
    const QString type = QStringLiteral("text.split");
    const auto few = [](SampleText &sample, int size) {
        return splitting(sample.textWith(sample.separator(), size / 8, size), sample.separator());
    };
    const auto dense = [](SampleText &sample, int size) {
        return splitting(sample.textWith(sample.separator(), 2, size), sample.separator());
    };
    const auto several = [](SampleText &sample, int size) {
        return splitting(sample.textWith(sample.longSeparator(), 16, size), sample.longSeparator());
    };
    const auto hard = [](SampleText &sample, int size) {
        return repetitive(sample, size, searchSize(size));
    };
    const auto harder = [](SampleText &sample, int size) {
        return repetitive(sample, size, longSearchSize(size));
    };
    return widthCases(type) +
           QVector<BenchmarkCase>{
               {type, QStringLiteral("few separators"), few},
               {type, QStringLiteral("dense separators"), dense},
               {type, QStringLiteral("separators of three units"), several},
               {type, QStringLiteral("repetitive"), hard},
               BenchmarkCase(type, QStringLiteral("repetitive, long separator"), harder)
                   .growthOnly(),
           };
}
