#pragma once

#include "refhost/engine/Result.h"
#include "refhost/validator/CheckInfo.h"
#include "refhost/validator/Outcome.h"

#include <QList>
#include <QString>

class Interruption;
struct ValidateOptions;

/// One check of a report.
struct CheckReport
{
    CheckInfo check;
    Outcome outcome;
    qint64 milliseconds = 0;
};

/// The program oprun-probe, which loads a plug-in in place of oprun and runs one check on it.
class Probe
{
public:
    /// The probe that stands beside this program.
    static Result<Probe> find();

    /// The checks it knows, in their order.
    const QList<CheckInfo> &checks() const { return m_checks; }

    /// Runs a check on the plug-in `file` in a new process, which is ended when its time is over
    /// and when oprun is asked to end. Whatever the plug-in does to that process is an outcome.
    CheckReport run(const CheckInfo &check, const QString &file, const ValidateOptions &options,
                    const Interruption &interruption) const;

private:
    Probe() = default;

    QString m_program;
    QList<CheckInfo> m_checks;
};
