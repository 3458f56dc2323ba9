#include "benchmarks/Suite.h"

#include "benchmarks/Trial.h"

#include "refhost/engine/OperationCatalog.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace {

/// A number of its own for the texts of each case and size, the same in every run.
quint32 seedOf(const BenchmarkCase &measured, int size)
{
    auto seed = static_cast<quint32>(size);
    const QString name = measured.typeId() + measured.name();
    for (const QChar unit : name)
        seed = seed * 31 + unit.unicode();
    return seed;
}

std::unique_ptr<Trial> prepared(const Operation &prototype, const BenchmarkCase &measured,
                                Alphabet alphabet, int size)
{
    SampleText sample(alphabet, seedOf(measured, size));
    return std::make_unique<Trial>(prototype, measured.prepare()(sample, size));
}

/// The times at the first of the growth sizes.
QVector<Growth::Point> pointsOf(const std::vector<double> &times)
{
    QVector<Growth::Point> points;
    for (std::size_t i = 0; i < times.size(); ++i)
        points.append({growthSizes[i], times[i]});
    return points;
}

Subject subjectOf(const BenchmarkCase &measured, Alphabet alphabet)
{
    return {measured.typeId(), measured.name(), alphabet};
}

} // namespace

Suite::Suite(const OperationCatalog &catalog, const Effort &effort)
    : m_catalog(catalog)
    , m_stopwatch(effort)
{
}

bool Suite::compare(const QVector<BenchmarkCase> &cases, const ComparisonSink &sink)
{
    for (const BenchmarkCase &measured : cases) {
        for (const int size : measured.sizes()) {
            for (const Alphabet alphabet : measured.alphabets()) {
                if (!compare(measured, alphabet, size, sink))
                    return false;
            }
        }
    }
    return true;
}

bool Suite::grow(const QVector<BenchmarkCase> &cases, const GrowthSink &sink)
{
    sink(copyGrowth());
    for (const BenchmarkCase &measured : cases) {
        if (!measured.isMeasuredForGrowth())
            continue;
        for (const Alphabet alphabet : measured.alphabets()) {
            if (!grow(measured, alphabet, sink))
                return false;
        }
    }
    return true;
}

const Operation *Suite::prototype(const BenchmarkCase &measured)
{
    const CatalogEntry *entry = m_catalog.find(measured.typeId());
    if (entry)
        return entry->prototype;
    m_problem = QStringLiteral("the plug-in has no operation %1").arg(measured.typeId());
    return nullptr;
}

bool Suite::compare(const BenchmarkCase &measured, Alphabet alphabet, int size,
                    const ComparisonSink &sink)
{
    const Operation *operation = prototype(measured);
    if (!operation)
        return false;
    const Subject subject = subjectOf(measured, alphabet);
    const auto trial = prepared(*operation, measured, alphabet, size);
    const std::vector<Stopwatch::Work> works = {
        [&] { trial->runStep(); }, [&] { trial->runBare(); }, [&] { trial->copyText(); }};
    const std::vector<double> calls = m_stopwatch.once(works);
    if (!isRight(trial->differenceFromBare(), subject, size))
        return false;
    trial->chooseText();
    const std::vector<double> times = m_stopwatch.repeated(works, calls);
    sink({subject, size, measured.hasToBeatQt(), times[0], times[1], times[2]});
    return true;
}

Growth Suite::copyGrowth() const
{
    std::vector<Stopwatch::Work> works;
    for (const int size : growthSizes) {
        const QString text(size, QLatin1Char('a'));
        works.emplace_back(
            [text] { benchmark::DoNotOptimize(QString(text.constData(), text.size())); });
    }
    const Subject subject{QStringLiteral("(plain copy)"), QString(), Alphabet::Ascii};
    return {subject, pointsOf(m_stopwatch.repeated(works, m_stopwatch.once(works))), false};
}

bool Suite::grow(const BenchmarkCase &measured, Alphabet alphabet, const GrowthSink &sink)
{
    const Operation *operation = prototype(measured);
    if (!operation)
        return false;
    const Subject subject = subjectOf(measured, alphabet);
    std::vector<std::unique_ptr<Trial>> trials;
    std::vector<Stopwatch::Work> works;
    std::vector<double> calls;
    for (const int size : growthSizes) {
        // Two points make a ratio. A step that is slow already would take minutes on still longer
        // texts, to show the same.
        if (calls.size() >= 2 && m_stopwatch.isTooLong(calls.back()))
            break;
        trials.push_back(prepared(*operation, measured, alphabet, size));
        works.emplace_back([trial = trials.back().get()] { trial->runStep(); });
        calls.push_back(m_stopwatch.once({works.back()}).front());
        if (!isRight(trials.back()->differenceFromKnown(), subject, size))
            return false;
    }
    sink({subject, pointsOf(m_stopwatch.repeated(works, calls)), true});
    return true;
}

bool Suite::isRight(const QString &difference, const Subject &subject, int size)
{
    if (difference.isEmpty())
        return true;
    m_problem = QStringLiteral("%1, %2, %3, %4 units: %5")
                    .arg(subject.typeId, subject.name, alphabetName(subject.alphabet))
                    .arg(size)
                    .arg(difference);
    return false;
}
