#include "refhost/validator/ProbeMessage.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

namespace {

const QString activityKey = QStringLiteral("activity");
const QString outcomeKey = QStringLiteral("outcome");

QByteArray lineOf(const QString &key, const QJsonValue &value)
{
    return QJsonDocument(QJsonObject{{key, value}}).toJson(QJsonDocument::Compact) + '\n';
}

QJsonValue valueIn(const QByteArray &line, const QString &key)
{
    return QJsonDocument::fromJson(line).object().value(key);
}

} // namespace

QByteArray activityLine(const QString &activity)
{
    return lineOf(activityKey, activity);
}

QByteArray outcomeLine(const Outcome &outcome)
{
    return lineOf(outcomeKey, outcome.toJson());
}

std::optional<QString> activityIn(const QByteArray &line)
{
    const QJsonValue value = valueIn(line, activityKey);
    return value.isString() ? std::optional<QString>(value.toString()) : std::nullopt;
}

std::optional<Outcome> outcomeIn(const QByteArray &line)
{
    return Outcome::fromJson(valueIn(line, outcomeKey).toObject());
}
