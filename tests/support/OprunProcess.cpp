#include "tests/support/OprunProcess.h"

#include <QProcess>

OprunOutcome runProgram(const QString &oprun, const QStringList &arguments, const QString &folder,
                        const QMap<QString, QString> &environment)
{
    constexpr int tenMinutes = 600000;
    QProcess process;
    process.setWorkingDirectory(folder);
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    // Whatever the language of whoever runs the tests.
    variables.insert("LC_ALL", "C");
    variables.remove("LANGUAGE");
    for (auto variable = environment.begin(); variable != environment.end(); ++variable)
        variables.insert(variable.key(), variable.value());
    process.setProcessEnvironment(variables);
    process.start(oprun, arguments);
    if (!process.waitForFinished(tenMinutes) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, {}, process.errorString()};
    const QByteArray bytes = process.readAllStandardOutput();
    return {process.exitCode(), bytes, QString::fromUtf8(bytes),
            QString::fromUtf8(process.readAllStandardError())};
}
