#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

/// How a check ended.
enum class Verdict { Passed, Warning, Failed, Skipped, Crashed, TimedOut };

/// The word for `verdict` in reports: "passed", "warning", "failed", "skipped", "crashed" or
/// "timed out".
QString verdictWord(Verdict verdict);

/// What a check found. It has passed until something is added.
class Outcome
{
public:
    Outcome() = default;
    /// An outcome with one detail, for instance that of a check that was not run.
    Outcome(Verdict verdict, const QString &detail);

    Verdict verdict() const { return m_verdict; }

    /// What is wrong and where, a line each: the operation, the property, the key, the value.
    const QStringList &details() const { return m_details; }

    /// Adds something that is wrong.
    void fail(const QString &detail);
    /// Adds something an author should look at, though it may be meant so.
    void warn(const QString &detail);
    /// Adds a line that changes nothing of the verdict.
    void remark(const QString &detail) { m_details.append(detail); }

    QJsonObject toJson() const;

    /// Reads what `toJson` gave; nothing when it is anything else.
    static std::optional<Outcome> fromJson(const QJsonObject &json);

private:
    Verdict m_verdict = Verdict::Passed;
    QStringList m_details;
};
