#include "tests/mutation/EqualMutants.h"
#include "tests/mutation/LibrarySources.h"
#include "tests/mutation/MutationFinder.h"
#include "tests/mutation/MutationOptions.h"
#include "tests/mutation/MutationReport.h"
#include "tests/mutation/MutationRun.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

constexpr int badShare = 1;
constexpr int noRun = 2;

const char *const equalList = "tests/mutation/equal.txt";
const char *const workFolder = "build/mutate";

void print(std::FILE *stream, const QString &text)
{
    QTextStream out(stream);
    out.setCodec("UTF-8");
    out << text;
}

int fail(const QString &problem)
{
    print(stderr, QStringLiteral("mutate: %1\n").arg(problem));
    return noRun;
}

QString contentOf(const QString &file)
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

QVector<Mutation> mutationsOf(const QStringList &files)
{
    QVector<Mutation> mutations;
    for (const QString &file : files)
        mutations += MutationFinder(file, contentOf(file)).all();
    return mutations;
}

QVector<Mutation> eachNth(const QVector<Mutation> &mutations, int n)
{
    QVector<Mutation> chosen;
    for (int i = n - 1; i < mutations.size(); i += n)
        chosen.append(mutations.at(i));
    return chosen;
}

int list(const QVector<Mutation> &mutations)
{
    for (const Mutation &mutation : mutations)
        print(stdout, describe(mutation));
    print(stdout, QStringLiteral("%1 mutations\n").arg(mutations.size()));
    return 0;
}

void printProgress(int done, int all, const MutantResult &result)
{
    const bool survived = result.outcome == MutantResult::Outcome::Survived;
    const QString name = outcomeName(result.outcome);
    const QString word = survived ? name.toUpper() : name;
    const QString form = QStringLiteral("[%1/%2] %3 s, %4: %5:%6: ");
    print(stderr, form.arg(done)
                          .arg(all)
                          .arg(result.seconds, 0, 'f', 1)
                          .arg(word, result.mutation.file)
                          .arg(result.mutation.line) +
                      result.mutation.after + QLatin1Char('\n'));
}

/// Tries the mutations; the answer is the exit status.
int tryAll(const QVector<Mutation> &mutations, int jobs, const EqualMutants &equal,
           const QStringList &stale)
{
    const QString project = QDir::currentPath();
    const QString folder = QDir(project).filePath(QLatin1String(workFolder));
    QDir().mkpath(folder);
    MutationRun run(project, folder, jobs);
    const int all = mutations.size();
    print(stderr, QStringLiteral("-- building %1 copies of the project\n").arg(jobs));
    const auto results = run.run(
        mutations, [=](int done, const MutantResult &result) { printProgress(done, all, result); });
    if (!run.problem().isEmpty())
        return fail(run.problem());
    const MutationReport report(results, equal, stale);
    print(stdout, report.toText());
    QFile json(folder + QStringLiteral("/report.json"));
    if (!json.open(QIODevice::WriteOnly) || json.write(report.toJson()) < 0)
        return fail(QStringLiteral("cannot write %1").arg(json.fileName()));
    return report.isGood() ? 0 : badShare;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QString problem;
    const MutationOptions options = MutationOptions::read(QCoreApplication::arguments(), &problem);
    if (!problem.isEmpty())
        return fail(problem);
    const QStringList sources = librarySources(QDir::currentPath());
    QStringList files;
    std::copy_if(sources.begin(), sources.end(), std::back_inserter(files),
                 [&](const QString &file) { return isMeant(file, options.filePatterns); });
    if (files.isEmpty())
        return fail(QStringLiteral("no source in operations/ or plugin/ is meant; run it in the "
                                   "project's folder, with patterns such as --file 'Text*'"));
    const EqualMutants equal =
        EqualMutants::read(contentOf(QString::fromLatin1(equalList)), &problem);
    if (!problem.isEmpty())
        return fail(QString::fromLatin1(equalList) + QStringLiteral(": ") + problem);
    const QVector<Mutation> found = mutationsOf(files);
    const QVector<Mutation> chosen = eachNth(found, options.every);
    if (options.listOnly)
        return list(chosen);
    const QStringList stale = equal.withoutFile(sources) + equal.unmatched(files, found);
    return tryAll(chosen, std::min(options.jobs, std::max(1, chosen.size())), equal, stale);
}
