#include "tests/pages/PageFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

/// The workbench opens no window that nobody closes: it draws its window instead, unless it is told
/// to.
const char *const drawnWorkbench =
    "#!/usr/bin/env bash\n"
    "case \" $* \" in\n"
    "    *\" --screenshot\"* | *\" --help \"* | *\" --version \"*) ;;\n"
    "    *) set -- --screenshot \"$HOME/window.png\" \"$@\" ;;\n"
    "esac\n"
    "exec \"" OPWORKBENCH_FILE "\" \"$@\"\n";

/// oprun as a reader of a Chinese page has it. The shell keeps its locale, which need not be there.
const char *const chineseOprun = "#!/usr/bin/env bash\n"
                                 "exec env LC_ALL=zh_CN.UTF-8 \"" OPRUN_FILE "\" \"$@\"\n";

const QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

} // namespace

PageFolder::PageFolder(const QString &page)
{
    if (!m_folder.isValid())
        m_problem = m_folder.errorString();
    else
        fill(page);
}

void PageFolder::fill(const QString &page)
{
    for (const char *const folder : {"project/build/release/bin", "project/scripts", "home"})
        QDir().mkpath(m_folder.filePath(folder));
    QFile::setPermissions(m_folder.filePath("home"), ownerOnly);
    copy(PROJECT_FOLDER "/examples", "examples");
    link(PROJECT_FOLDER "/scripts/run-example", "scripts/run-example");
    const QString own = PAGE_FILES "/" + page;
    if (QFileInfo::exists(own))
        copy(own, ".");
    linkPrograms();
    if (page.endsWith(".zh.md"))
        writeProgram("oprun", chineseOprun);
}

void PageFolder::linkPrograms()
{
    const QString build = "build/release/";
    link(OPRUN_FILE, build + "bin/oprun");
    link(BUILD_FOLDER "/lib", build + "lib");
    link(BUILD_FOLDER "/plugins", build + "plugins");
    link(PLUGIN_FILE, QFileInfo(PLUGIN_FILE).fileName());
    for (const char *const animal : {"libNullPrototype.so", "libCrashOnLoad.so"})
        link(ZOO_FOLDER "/" + QString(animal), animal);
    writeProgram("opworkbench", drawnWorkbench);
}

/// Writes a script in place of a program.
void PageFolder::writeProgram(const QString &name, const QString &script)
{
    const QString file = "build/release/bin/" + name;
    QFile::remove(path(file));
    write(file, script);
    QFile::setPermissions(path(file), ownerOnly);
}

void PageFolder::copy(const QString &from, const QString &to)
{
    const QDir source(from);
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = path(to + '/' + source.relativeFilePath(file));
        QDir().mkpath(QFileInfo(target).path());
        if (!QFile::copy(file, target))
            m_problem = "no copy of " + file;
    }
}

void PageFolder::link(const QString &file, const QString &name)
{
    if (!QFileInfo::exists(file) || !QFile::link(file, path(name)))
        m_problem = "no link to " + file;
}

bool PageFolder::has(const QString &name) const
{
    return QFileInfo::exists(path(name));
}

void PageFolder::write(const QString &name, const QString &content)
{
    QFile file(path(name));
    if (!file.open(QFile::WriteOnly) || file.write(content.toUtf8()) < 0)
        m_problem = name + ": " + file.errorString();
}

OprunOutcome PageFolder::type(const QString &command)
{
    // The shell is another for each command, but "$?" is what it would be in one.
    const QString line = QString("exec 2>&1\n(exit %1)\n%2\n").arg(m_status).arg(command);
    const QString home = m_folder.filePath("home");
    OprunOutcome outcome =
        runProgram("bash", {"-c", line}, m_folder.filePath("project"),
                   {{"PATH", path("build/release/bin") + ':' + qEnvironmentVariable("PATH")},
                    {"QT_QPA_PLATFORM", "offscreen"},
                    {"LC_ALL", "C"},
                    {"HOME", home},
                    {"XDG_CONFIG_HOME", home},
                    {"XDG_DATA_HOME", home},
                    {"XDG_RUNTIME_DIR", home}});
    m_status = outcome.status;
    return outcome;
}
