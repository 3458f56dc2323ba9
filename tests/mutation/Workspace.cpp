#include "tests/mutation/Workspace.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QThread>

#include <algorithm>

namespace {

constexpr int buildLimit = 600'000;
constexpr qint64 memoryLimit = Q_INT64_C(3) << 30;

/// The tests that look at the tree and the build, slowly, and not at what the library does.
const char *const leftOut = "^(BuildAgainstHost|InstallTree|Layers)$";

QByteArray contentOf(const QString &file)
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

bool writeContent(const QString &file, const QByteArray &content)
{
    QFile target(file);
    return target.open(QIODevice::WriteOnly) && target.write(content) == content.size();
}

/// The files below `folder`, relative to it, without what git and the builds keep there.
QStringList filesBelow(const QString &folder)
{
    QStringList files;
    const QDir root(folder);
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString file = root.relativeFilePath(iterator.next());
        if (!file.startsWith(QLatin1String(".git/")) && !file.startsWith(QLatin1String("build/")))
            files.append(file);
    }
    return files;
}

} // namespace

Workspace::Workspace(const QString &project, const QString &folder)
    : m_project(project + QLatin1Char('/'))
    , m_source(folder + QStringLiteral("/source/"))
    , m_build(folder + QStringLiteral("/build"))
    , m_stamp(folder + QStringLiteral("/stamp"))
    , m_log(folder + QStringLiteral("/log"))
{
}

QString Workspace::prepare(int jobs)
{
    copyProject();
    m_jobs = jobs;
    if (!configure() || !build({}))
        return QStringLiteral("the unchanged project does not build, see %1").arg(m_log);
    QElapsedTimer timer;
    timer.start();
    if (test({}) != LimitedProcess::End::Success)
        return QStringLiteral("the unchanged project fails its tests, run ctest in %1")
            .arg(m_build);
    m_testLimit = static_cast<int>(std::clamp<qint64>(20 * timer.elapsed(), 10'000, 60'000));
    m_jobs = 1;
    return {};
}

void Workspace::write(const QString &file, const QString &text)
{
    // The build goes by the times of files, and a file system tells them apart in steps only.
    const QString path = m_source + file;
    const QDateTime built = QFileInfo(m_stamp).lastModified();
    writeContent(path, text.toUtf8());
    while (QFileInfo(path).lastModified() <= built) {
        QThread::msleep(2);
        writeContent(path, text.toUtf8());
    }
}

void Workspace::restore(const QString &file)
{
    write(file, QString::fromUtf8(contentOf(m_project + file)));
}

bool Workspace::build(const QStringList &targets)
{
    QStringList command{QStringLiteral("cmake"), QStringLiteral("--build"), m_build,
                        QStringLiteral("--parallel"), QString::number(m_jobs)};
    if (!targets.isEmpty())
        command << QStringLiteral("--target") << targets;
    const auto end = LimitedProcess(m_source, m_log).run(command, buildLimit);
    touchStamp();
    return end == LimitedProcess::End::Success;
}

LimitedProcess::End Workspace::test(const QStringList &tests)
{
    QStringList command{QStringLiteral("ctest"),     QStringLiteral("--stop-on-failure"),
                        QStringLiteral("--timeout"), QString::number(m_testLimit / 1000),
                        QStringLiteral("-E"),        QString::fromLatin1(leftOut)};
    if (!tests.isEmpty()) {
        const QString names = tests.join(QLatin1Char('|'));
        command << QStringLiteral("-R") << QStringLiteral("^(%1)$").arg(names);
    }
    LimitedProcess process(m_build, {});
    process.limitMemory(memoryLimit);
    QElapsedTimer timer;
    timer.start();
    // ctest ends a test that takes too long, and counts it as failed.
    const LimitedProcess::End end = process.run(command, m_testLimit + m_testLimit / 2);
    const bool timedOut = end == LimitedProcess::End::Failure && timer.elapsed() >= m_testLimit;
    return timedOut ? LimitedProcess::End::TimedOut : end;
}

bool Workspace::hasTest(const QString &name) const
{
    QDirIterator iterator(m_source + QStringLiteral("tests"), {name + QStringLiteral(".cpp")},
                          QDir::Files, QDirIterator::Subdirectories);
    return iterator.hasNext();
}

void Workspace::copyProject()
{
    const QStringList files = filesBelow(m_project);
    QDir().mkpath(m_source);
    const QSet<QString> wanted(files.cbegin(), files.cend());
    const QStringList present = filesBelow(m_source);
    for (const QString &file : present) {
        if (!wanted.contains(file))
            QFile::remove(m_source + file);
    }
    for (const QString &file : files) {
        const QString copy = m_source + file;
        if (QFile::exists(copy) && contentOf(copy) == contentOf(m_project + file))
            continue;
        QDir().mkpath(QFileInfo(copy).path());
        QFile::remove(copy);
        QFile::copy(m_project + file, copy);
    }
}

bool Workspace::configure()
{
    if (QFile::exists(m_build + QStringLiteral("/build.ninja")))
        return true;
    QStringList command{
        QStringLiteral("cmake"), QStringLiteral("-S"),   m_source, QStringLiteral("-B"), m_build,
        QStringLiteral("-G"),    QStringLiteral("Ninja")};
    for (const QString &setting :
         {QStringLiteral("CMAKE_BUILD_TYPE=Debug"), QStringLiteral("CMAKE_CXX_FLAGS_DEBUG=-O0"),
          QStringLiteral("CMAKE_CXX_FLAGS=-w"),
          QStringLiteral("CMAKE_PROJECT_INCLUDE=%1tests/mutation/precompile.cmake").arg(m_source)})
        command << QStringLiteral("-D") << setting;
    return LimitedProcess(m_source, m_log).run(command, buildLimit) == LimitedProcess::End::Success;
}

void Workspace::touchStamp() const
{
    writeContent(m_stamp, QByteArrayLiteral("built\n"));
}
