#include "tests/support/OprunFolder.h"

#include <QFile>
#include <QProcess>

#include <utility>

OprunFolder::OprunFolder(QString program)
    : m_program(std::move(program))
{
}

OprunFolder::Outcome OprunFolder::run(const QStringList &arguments,
                                      const QMap<QString, QString> &environment) const
{
    return start(m_program, arguments, environment);
}

OprunFolder::Outcome OprunFolder::runShell(const QString &line) const
{
    return start("/bin/sh", {"-c", line}, {{"OPRUN", m_program}});
}

bool OprunFolder::write(const QString &name, const QByteArray &content) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray OprunFolder::read(const QString &name) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

OprunFolder::Outcome OprunFolder::start(const QString &program, const QStringList &arguments,
                                        const QMap<QString, QString> &environment) const
{
    QProcess process;
    process.setWorkingDirectory(path());
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto variable = environment.begin(); variable != environment.end(); ++variable)
        variables.insert(variable.key(), variable.value());
    process.setProcessEnvironment(variables);
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, {}, process.errorString()};
    const QByteArray bytes = process.readAllStandardOutput();
    return {process.exitCode(), bytes, QString::fromUtf8(bytes),
            QString::fromUtf8(process.readAllStandardError())};
}
