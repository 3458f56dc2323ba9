#include "tests/mutation/MutationRun.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <thread>
#include <vector>

namespace {

/// The tests to ask, the likeliest and fastest first: the one named after the source, those that go
/// through the whole library in one program, all.
QVector<QStringList> stages(const Workspace &workspace, const QString &file)
{
    const QString own = QFileInfo(file).completeBaseName() + QStringLiteral("Test");
    const QStringList general{QStringLiteral("TextOperPluginTest"),
                              QStringLiteral("PrototypesTest")};
    QVector<QStringList> stages;
    if (workspace.hasTest(own))
        stages.append({own});
    QStringList present;
    std::copy_if(general.begin(), general.end(), std::back_inserter(present),
                 [&](const QString &name) { return name != own && workspace.hasTest(name); });
    if (!present.isEmpty())
        stages.append(present);
    stages.append(QStringList());
    return stages;
}

QString sourceOf(const QString &project, const QString &file)
{
    QFile source(project + QLatin1Char('/') + file);
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

} // namespace

MutationRun::MutationRun(const QString &project, const QString &folder, int jobs)
    : m_project(project)
    , m_folder(folder)
    , m_jobs(jobs)
{
}

QVector<MutantResult> MutationRun::run(const QVector<Mutation> &mutations, const Progress &progress)
{
    m_results.resize(mutations.size());
    m_next = 0;
    std::vector<std::thread> workers;
    for (int i = 1; i <= m_jobs; ++i)
        workers.emplace_back([&, i] { work(i, mutations, progress); });
    for (std::thread &worker : workers)
        worker.join();
    return m_results;
}

void MutationRun::work(int worker, const QVector<Mutation> &mutations, const Progress &progress)
{
    Workspace workspace(m_project, QStringLiteral("%1/worker-%2").arg(m_folder).arg(worker));
    const QString problem = workspace.prepare(std::max(1, QThread::idealThreadCount() / m_jobs));
    if (!problem.isEmpty())
        return fail(problem);
    QString changed;
    for (int i = m_next++; i < mutations.size() && !m_failed; i = m_next++) {
        MutantResult result;
        result.mutation = mutations.at(i);
        const QString file = result.mutation.file;
        // The next mutant of a file takes the place of the last, with one build for both.
        if (!changed.isEmpty() && changed != file)
            workspace.restore(changed);
        changed = file;
        workspace.write(file, mutated(sourceOf(m_project, file), result.mutation));
        judge(workspace, result);
        report(i, result, progress);
    }
    if (!changed.isEmpty())
        workspace.restore(changed);
    if (!workspace.build({}) || workspace.test({}) != LimitedProcess::End::Success)
        fail(QStringLiteral("the restored project fails its tests; the results are of no use"));
}

void MutationRun::judge(Workspace &workspace, MutantResult &result) const
{
    using Outcome = MutantResult::Outcome;
    QElapsedTimer timer;
    timer.start();
    result.outcome = Outcome::Survived;
    const QVector<QStringList> order = stages(workspace, result.mutation.file);
    for (const QStringList &tests : order) {
        if (!workspace.build(tests)) {
            result.outcome = Outcome::DidNotBuild;
            break;
        }
        const LimitedProcess::End end = workspace.test(tests);
        if (end != LimitedProcess::End::Success) {
            const bool timedOut = end == LimitedProcess::End::TimedOut;
            result.outcome = timedOut ? Outcome::TimedOut : Outcome::Noticed;
            result.tests = tests.isEmpty() ? QStringLiteral("all") : tests.join(QLatin1Char(' '));
            break;
        }
    }
    result.seconds = static_cast<double>(timer.elapsed()) / 1000;
}

void MutationRun::report(int index, const MutantResult &result, const Progress &progress)
{
    const std::lock_guard lock(m_mutex);
    m_results[index] = result;
    progress(++m_done, result);
}

void MutationRun::fail(const QString &problem)
{
    const std::lock_guard lock(m_mutex);
    m_failed = true;
    m_problem = problem;
}
