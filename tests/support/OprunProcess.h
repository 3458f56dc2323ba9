#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/// What a run of oprun printed and how it ended.
struct OprunOutcome
{
    int status = -1;  ///< -1, with the reason in `err`, when it did not end by itself
    QByteArray bytes; ///< standard output as it is
    QString out;      ///< standard output as text
    QString err;
};

/// Runs the program `oprun` with these arguments in `folder`, the current one when it is empty,
/// with these environment variables added. Without a word of these on it the locale is "C".
OprunOutcome runProgram(const QString &oprun, const QStringList &arguments,
                        const QString &folder = {}, const QMap<QString, QString> &environment = {});
