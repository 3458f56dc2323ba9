#include "refhost/validator/Outcome.h"

#include <QJsonArray>
#include <QVariant>

namespace {

QStringList verdictWords()
{
    return {QStringLiteral("passed"),  QStringLiteral("warning"), QStringLiteral("failed"),
            QStringLiteral("skipped"), QStringLiteral("crashed"), QStringLiteral("timed out")};
}

} // namespace

QString verdictWord(Verdict verdict)
{
    return verdictWords().at(static_cast<int>(verdict));
}

Outcome::Outcome(Verdict verdict, const QString &detail)
    : m_verdict(verdict)
    , m_details(detail)
{
}

void Outcome::fail(const QString &detail)
{
    m_verdict = Verdict::Failed;
    m_details.append(detail);
}

void Outcome::warn(const QString &detail)
{
    if (m_verdict == Verdict::Passed)
        m_verdict = Verdict::Warning;
    m_details.append(detail);
}

QJsonObject Outcome::toJson() const
{
    return {{QStringLiteral("result"), verdictWord(m_verdict)},
            {QStringLiteral("details"), QJsonArray::fromStringList(m_details)}};
}

std::optional<Outcome> Outcome::fromJson(const QJsonObject &json)
{
    const int verdict = verdictWords().indexOf(json.value(QStringLiteral("result")).toString());
    if (verdict < 0)
        return std::nullopt;
    Outcome outcome;
    outcome.m_verdict = static_cast<Verdict>(verdict);
    outcome.m_details = json.value(QStringLiteral("details")).toVariant().toStringList();
    return outcome;
}
