#include "tests/mutation/MutationReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using Outcome = MutantResult::Outcome;

namespace {

constexpr double wantedShare = 95.0;

double percent(int part, int whole)
{
    return whole > 0 ? 100.0 * part / whole : 0.0;
}

QJsonObject toObject(const MutantResult &result)
{
    const Mutation &mutation = result.mutation;
    QJsonObject object{{QStringLiteral("file"), mutation.file},
                       {QStringLiteral("line"), mutation.line},
                       {QStringLiteral("column"), mutation.column},
                       {QStringLiteral("what"), mutation.what},
                       {QStringLiteral("before"), mutation.before},
                       {QStringLiteral("after"), mutation.after},
                       {QStringLiteral("outcome"), outcomeName(result.outcome)},
                       {QStringLiteral("seconds"), result.seconds}};
    if (!result.tests.isEmpty())
        object.insert(QStringLiteral("tests"), result.tests);
    if (!result.equalBecause.isEmpty())
        object.insert(QStringLiteral("equalBecause"), result.equalBecause);
    return object;
}

} // namespace

MutationReport::MutationReport(const QVector<MutantResult> &results, const EqualMutants &equal,
                               const QStringList &stale)
    : m_results(results)
    , m_stale(stale)
{
    for (MutantResult &result : m_results) {
        const QString reason = equal.reason(result.mutation);
        if (reason.isEmpty() || result.outcome == Outcome::DidNotBuild)
            continue;
        if (result.outcome == Outcome::Survived)
            result.equalBecause = reason;
        else
            m_stale.append(QStringLiteral("noticed all the same: ") + describe(result.mutation));
    }
}

int MutationReport::count(Outcome outcome) const
{
    return static_cast<int>(
        std::count_if(m_results.begin(), m_results.end(),
                      [=](const MutantResult &result) { return result.outcome == outcome; }));
}

int MutationReport::noticed() const
{
    return count(Outcome::Noticed) + count(Outcome::TimedOut);
}

int MutationReport::equalCount() const
{
    return static_cast<int>(
        std::count_if(m_results.begin(), m_results.end(),
                      [](const MutantResult &result) { return !result.equalBecause.isEmpty(); }));
}

double MutationReport::share() const
{
    return percent(noticed(), noticed() + count(Outcome::Survived));
}

double MutationReport::shareWithoutEqual() const
{
    return percent(noticed(), noticed() + count(Outcome::Survived) - equalCount());
}

bool MutationReport::isGood() const
{
    return share() >= wantedShare && m_stale.isEmpty();
}

QString MutationReport::numbers() const
{
    const QString form = QStringLiteral(
        "%1 mutants: %2 noticed (%3 of them by running too long), %4 survived (%5 of "
        "them are equal), %6 did not build\n"
        "noticed: %7 % of all that were built, %8 % without the equal ones; wanted: %9 % of all\n");
    return form.arg(m_results.size())
        .arg(noticed())
        .arg(count(Outcome::TimedOut))
        .arg(count(Outcome::Survived))
        .arg(equalCount())
        .arg(count(Outcome::DidNotBuild))
        .arg(share(), 0, 'f', 1)
        .arg(shareWithoutEqual(), 0, 'f', 1)
        .arg(wantedShare, 0, 'f', 0);
}

QString MutationReport::section(const QString &title, const QStringList &items) const
{
    if (items.isEmpty())
        return {};
    return QStringLiteral("\n== %1\n").arg(title) + items.join(QString());
}

QString MutationReport::toText() const
{
    QStringList survivors;
    QStringList equal;
    QStringList stale;
    for (const MutantResult &result : m_results) {
        const QString text = describe(result.mutation);
        if (!result.equalBecause.isEmpty())
            equal.append(text + QStringLiteral("    equal: %1\n").arg(result.equalBecause));
        else if (result.outcome == Outcome::Survived)
            survivors.append(text);
    }
    for (const QString &entry : m_stale)
        stale.append(entry.trimmed() + QLatin1Char('\n'));
    return numbers() + section(QStringLiteral("Survivors"), survivors) +
           section(QStringLiteral("Survivors that are equal"), equal) +
           section(QStringLiteral("Entries of the list of equal mutants that do not fit"), stale);
}

QByteArray MutationReport::toJson() const
{
    QJsonArray mutants;
    for (const MutantResult &result : m_results)
        mutants.append(toObject(result));
    const QJsonObject report{{QStringLiteral("share"), share()},
                             {QStringLiteral("shareWithoutEqual"), shareWithoutEqual()},
                             {QStringLiteral("noticed"), noticed()},
                             {QStringLiteral("timedOut"), count(Outcome::TimedOut)},
                             {QStringLiteral("survived"), count(Outcome::Survived)},
                             {QStringLiteral("equal"), equalCount()},
                             {QStringLiteral("didNotBuild"), count(Outcome::DidNotBuild)},
                             {QStringLiteral("stale"), QJsonArray::fromStringList(m_stale)},
                             {QStringLiteral("mutants"), mutants}};
    return QJsonDocument(report).toJson();
}
