#pragma once

#include "refhost/engine/JsonTypes.h"

#include <QByteArray>
#include <QString>

class QJsonObject;

/// Results on standard output, everything else on standard error, both as UTF-8 whatever the
/// locale. Results are held back until `flush`, so that a command that fails has printed none.
class Console
{
public:
    /// Adds one line of results.
    void print(const QString &line);

    /// Adds results in JSON.
    void printJson(const JsonValue &json);
    void printJson(const QJsonObject &json);

    /// Writes one line to standard error.
    void note(const QString &line) const;

    /// Writes one message to standard error, under the program's name.
    void complain(const QString &message) const;

    /// Writes the results. False, with a message, when they cannot be written.
    bool flush();

private:
    QByteArray m_results;
};
