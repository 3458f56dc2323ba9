#include "benchmarks/FiguresJson.h"

#include <QJsonArray>

namespace {

QJsonObject subjectJson(const Subject &subject)
{
    return {{QStringLiteral("operation"), subject.typeId},
            {QStringLiteral("case"), subject.name},
            {QStringLiteral("text"), alphabetName(subject.alphabet)}};
}

QJsonObject comparisonJson(const Comparison &comparison)
{
    QJsonObject json = subjectJson(comparison.subject);
    json.insert(QStringLiteral("units"), comparison.size);
    json.insert(QStringLiteral("step"), comparison.step);
    json.insert(QStringLiteral("qt"), comparison.bare);
    json.insert(QStringLiteral("copy"), comparison.copy);
    json.insert(QStringLiteral("stepToQt"), comparison.toBare());
    json.insert(QStringLiteral("stepToCopy"), comparison.toCopy());
    return json;
}

QJsonObject growthJson(const Growth &growth)
{
    QJsonArray points;
    for (const Growth::Point &point : growth.points) {
        points.append(QJsonObject{{QStringLiteral("units"), point.size},
                                  {QStringLiteral("time"), point.time}});
    }
    QJsonObject json = subjectJson(growth.subject);
    json.insert(QStringLiteral("points"), points);
    json.insert(QStringLiteral("ratioPerDoubling"), growth.ratioPerDoubling());
    return json;
}

QJsonObject missJson(const Target::Miss &miss)
{
    QJsonObject json = subjectJson(miss.subject);
    json.insert(QStringLiteral("units"), miss.size);
    json.insert(QStringLiteral("value"), miss.value);
    return json;
}

template <typename T>
QJsonArray arrayOf(const QVector<T> &values, QJsonObject (*json)(const T &))
{
    QJsonArray array;
    for (const T &value : values)
        array.append(json(value));
    return array;
}

QJsonObject targetJson(const Target &target)
{
    return {{QStringLiteral("target"), target.name},
            {QStringLiteral("limit"), target.limit},
            {QStringLiteral("judged"), target.judged},
            {QStringLiteral("met"), target.misses.isEmpty()},
            {QStringLiteral("misses"), arrayOf(target.misses, missJson)}};
}

} // namespace

QJsonObject figuresJson(const Figures &figures, const QVector<Target> &targets)
{
    return {{QStringLiteral("rows"), arrayOf(figures.comparisons, comparisonJson)},
            {QStringLiteral("growth"), arrayOf(figures.growths, growthJson)},
            {QStringLiteral("targets"), arrayOf(targets, targetJson)}};
}
