#include "benchmarks/cases/Cases.h"

#include <QVariantList>

#include <algorithm>

namespace {

QString joined(const QVariantList &elements, const QString &separator)
{
    QString text;
    for (int i = 0; i < elements.size(); ++i) {
        if (i > 0)
            text += separator;
        text += elements.at(i).toString();
    }
    return text;
}

QVariant bare(const VariableScope &scope)
{
    const QVariantList elements = scope.get(QStringLiteral("listVar")).toList();
    return joined(elements, textIn(scope, QStringLiteral("separator")));
}

/// Elements that are lists stand as their own elements between commas.
QVariant bareNested(const VariableScope &scope)
{
    const QVariantList elements = scope.get(QStringLiteral("listVar")).toList();
    const QString separator = textIn(scope, QStringLiteral("separator"));
    QString text;
    for (int i = 0; i < elements.size(); ++i) {
        if (i > 0)
            text += separator;
        text += joined(elements.at(i).toList(), QStringLiteral(", "));
    }
    return text;
}

Setup joining(const QVariantList &elements, const QString &separator, BareWork work = bare)
{
    return Setup(VarType::String, work)
        .operand(QStringLiteral("listVar"), VarType::List, elements)
        .text(QStringLiteral("separator"), separator);
}

/// The text in pieces of `width` units, less one for the separator behind each.
QVariantList pieces(const QString &text, int width)
{
    QVariantList list;
    for (int i = 0; i < text.size(); i += width)
        list.append(text.mid(i, width - 1));
    return list;
}

QVariantList numbers(int count)
{
    QVariantList list;
    for (int i = 0; i < count; ++i)
        list.append(1000.125 + i % 9000);
    return list;
}

/// Rows of four short texts.
QVariantList rows(SampleText &sample, int size)
{
    QVariantList list;
    for (int i = 0; i < std::max(1, size / 19); ++i)
        list.append(QVariant(pieces(sample.text(16), 4)));
    return list;
}

} // namespace

QVector<BenchmarkCase> joinCases()
{
    const QString type = QStringLiteral("text.join");
    return {
        {type, QStringLiteral("eight long texts"),
         [](SampleText &sample, int size) {
             return joining(pieces(sample.text(size), size / 8), sample.separator());
         }},
        {type, QStringLiteral("short texts"),
         [](SampleText &sample, int size) {
             return joining(pieces(sample.text(size), 4), sample.separator());
         }},
        {type, QStringLiteral("numbers"),
         [](SampleText &sample, int size) {
             return joining(numbers(size / 9), sample.separator());
         }},
        {type, QStringLiteral("nested lists"),
         [](SampleText &sample, int size) {
             return joining(rows(sample, size), sample.separator(), bareNested);
         }},
    };
}
