#include "refhost/validator/CheckInfo.h"

#include <QStringList>

namespace {

QStringList groundWords()
{
    return {QStringLiteral("file"), QStringLiteral("library"), QStringLiteral("plugin")};
}

QString groundWord(Ground ground)
{
    return groundWords().at(static_cast<int>(ground));
}

Ground groundFromWord(const QString &word)
{
    return static_cast<Ground>(groundWords().indexOf(word));
}

} // namespace

QJsonObject CheckInfo::toJson() const
{
    return {{QStringLiteral("id"), id},
            {QStringLiteral("level"), level},
            {QStringLiteral("sentence"), sentence},
            {QStringLiteral("needs"), groundWord(needs)},
            {QStringLiteral("provides"), groundWord(provides)},
            {QStringLiteral("option"), option}};
}

CheckInfo CheckInfo::fromJson(const QJsonObject &json)
{
    CheckInfo info;
    info.id = json.value(QStringLiteral("id")).toString();
    info.level = json.value(QStringLiteral("level")).toInt();
    info.sentence = json.value(QStringLiteral("sentence")).toString();
    info.needs = groundFromWord(json.value(QStringLiteral("needs")).toString());
    info.provides = groundFromWord(json.value(QStringLiteral("provides")).toString());
    info.option = json.value(QStringLiteral("option")).toString();
    return info;
}
