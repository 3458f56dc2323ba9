#include "tests/support/OprunFolder.h"

#include <QFile>

#include <utility>

OprunFolder::OprunFolder(QString program)
    : m_program(std::move(program))
{
}

OprunFolder::Outcome OprunFolder::run(const QStringList &arguments,
                                      const QMap<QString, QString> &environment) const
{
    return runProgram(m_program, arguments, path(), environment);
}

OprunFolder::Outcome OprunFolder::runShell(const QString &line) const
{
    return runProgram("/bin/sh", {"-c", line}, path(), {{"OPRUN", m_program}});
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
