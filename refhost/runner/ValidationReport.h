#pragma once

#include "refhost/runner/Probe.h"

#include <QJsonObject>
#include <QStringList>

struct ValidateOptions;

/// What the checks said of one plug-in.
class ValidationReport
{
public:
    ValidationReport(const QString &file, const QList<CheckReport> &reports);

    /// For people: a line for each check, its details indented below it, and a line of counts.
    QStringList lines(const ValidateOptions &options) const;

    QJsonObject toJson(const ValidateOptions &options) const;

    /// The exit status the report comes to.
    int exitStatus() const;

private:
    int count(Verdict verdict) const;
    QString summary(const ValidateOptions &options) const;

    QString m_file;
    QList<CheckReport> m_reports;
};
