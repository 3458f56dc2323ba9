#include "refhost/engine/TaskProblem.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/Excerpt.h"
#include "refhost/engine/JsonValue.h"

QString variablePlace(const QString &name)
{
    return QStringLiteral("variables.") + name;
}

QString stepPlace(int index)
{
    return QStringLiteral("steps[%1]").arg(index);
}

Problem emptyName(const QString &place)
{
    return {
        Problem::Reason::UnfitValue, {}, place, EngineText::tr("an empty name; expected a name")};
}

Problem unknownType(const QString &place, const QJsonValue &found, const QStringList &known)
{
    const QString expected = listText(known);
    if (found.isUndefined()) {
        return {Problem::Reason::MissingKey,
                {},
                place,
                EngineText::tr("missing; expected %1").arg(expected)};
    }
    return {Problem::Reason::UnknownType,
            {},
            place,
            EngineText::tr("%1; expected %2").arg(excerpt(jsonText(found)), expected)};
}

Problem unknownVariable(const QString &place, const QString &name, const QStringList &known)
{
    return {Problem::Reason::UnknownVariable,
            {},
            place,
            known.isEmpty() ? EngineText::tr("the task has no variable %1; expected none at all")
                                  .arg(excerpt(jsonText(name)))
                            : EngineText::tr("the task has no variable %1; expected %2")
                                  .arg(excerpt(jsonText(name)), listText(known))};
}
