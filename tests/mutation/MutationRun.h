#pragma once

#include "tests/mutation/MutantResult.h"
#include "tests/mutation/Workspace.h"

#include <QString>
#include <QVector>

#include <atomic>
#include <functional>
#include <mutex>

/// Tries mutations, several at a time, each worker in a copy of the project of its own.
class MutationRun
{
public:
    /// Is told of every result, with the number of results so far.
    using Progress = std::function<void(int done, const MutantResult &result)>;

    /// The copies are kept in `folder`, so that a later run has less to build.
    MutationRun(const QString &project, const QString &folder, int jobs);

    /// The results in the order of the mutations.
    QVector<MutantResult> run(const QVector<Mutation> &mutations, const Progress &progress);

    /// Why the last run ended early, empty when it did not.
    QString problem() const { return m_problem; }

private:
    void work(int worker, const QVector<Mutation> &mutations, const Progress &progress);
    void judge(Workspace &workspace, MutantResult &result) const;
    void report(int index, const MutantResult &result, const Progress &progress);
    void fail(const QString &problem);

    QString m_project;
    QString m_folder;
    int m_jobs;
    std::atomic<int> m_next{0};
    std::atomic<bool> m_failed{false};
    std::mutex m_mutex;
    QVector<MutantResult> m_results;
    int m_done = 0;
    QString m_problem;
};
