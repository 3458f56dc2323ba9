#include "refhost/engine/TaskProblem.h"

#include "refhost/engine/JsonValue.h"

QString variablePlace(const QString &name)
{
    return QStringLiteral("variables.") + name;
}

QString stepPlace(int index)
{
    return QStringLiteral("steps[%1]").arg(index);
}

QString expectedWords(const QStringList &words)
{
    return QStringLiteral("expected ") + words.join(QLatin1String(", "));
}

Problem emptyName(const QString &place)
{
    return {
        Problem::Reason::UnfitValue, {}, place, QStringLiteral("an empty name; expected a name")};
}

Problem unknownType(const QString &place, const QJsonValue &found, const QStringList &known)
{
    const bool missing = found.isUndefined();
    return {missing ? Problem::Reason::MissingKey : Problem::Reason::UnknownType,
            {},
            place,
            QStringLiteral("%1; %2").arg(missing ? QStringLiteral("missing") : jsonText(found),
                                         expectedWords(known))};
}

Problem unknownVariable(const QString &place, const QString &name, const QStringList &known)
{
    return {Problem::Reason::UnknownVariable,
            {},
            place,
            QStringLiteral("the task has no variable %1; expected %2")
                .arg(jsonText(name), known.isEmpty() ? QStringLiteral("none at all")
                                                     : known.join(QLatin1String(", ")))};
}
