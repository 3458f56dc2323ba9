#pragma once

#include "tests/mutation/LimitedProcess.h"

#include <QString>
#include <QStringList>

/// A private copy of the project with a build of its own, in which sources can be changed.
class Workspace
{
public:
    /// The copy of `project` in `folder`; both are absolute.
    Workspace(const QString &project, const QString &folder);

    /// Brings copy and build up to date and runs the tests, which have to pass. The answer is what
    /// went wrong, empty when nothing did.
    QString prepare(int jobs);

    /// Gives a source, named relative to the project, another text.
    void write(const QString &file, const QString &text);

    /// Gives it the text that it has in the project.
    void restore(const QString &file);

    /// Builds these targets, without any everything.
    bool build(const QStringList &targets);

    /// Runs these tests up to the first failure, without any all that are fit for it.
    LimitedProcess::End test(const QStringList &tests);

    /// Whether the project has a test of this name.
    bool hasTest(const QString &name) const;

private:
    void copyProject();
    bool configure();
    void touchStamp() const;

    QString m_project;
    QString m_source;
    QString m_build;
    QString m_stamp;
    QString m_log;
    int m_jobs = 1;
    int m_testLimit = 60'000;
};
