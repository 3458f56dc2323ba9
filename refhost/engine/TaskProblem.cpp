#include "refhost/engine/TaskProblem.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/Excerpt.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/NameIndex.h"

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

Problem unknownType(const QString &place, const JsonValue &found, const QStringList &known)
{
    const QString expected =
        known.isEmpty() ? EngineText::tr("an operation, but none is loaded") : listText(known);
    if (found.isUndefined()) {
        return {Problem::Reason::MissingKey,
                {},
                place,
                EngineText::tr("missing; expected %1").arg(expected)};
    }
    return {
        Problem::Reason::UnknownType,
        {},
        place,
        withSuggestion(EngineText::tr("%1; expected %2").arg(excerpt(jsonText(found)), expected),
                       nearestName(found.toString(), known))};
}

Problem unknownKey(const QString &place, const QString &name, const QStringList &known)
{
    return {Problem::Reason::UnknownKey,
            {},
            place,
            withSuggestion(EngineText::tr("unknown key %1; expected %2")
                               .arg(excerpt(jsonText(name)), listText(known)),
                           nearestName(name, known))};
}

Problem unknownProperty(const QString &place, const QString &name, const QString &typeId,
                        const QStringList &known)
{
    const QString message =
        known.isEmpty()
            ? EngineText::tr("%1 has no such property; expected none at all").arg(typeId)
            : EngineText::tr("%1 has no such property; expected %2").arg(typeId, listText(known));
    return {
        Problem::Reason::UnknownKey, {}, place, withSuggestion(message, nearestName(name, known))};
}

Problem unknownVariable(const QString &place, const QString &name, const QStringList &known)
{
    const QString message =
        known.isEmpty() ? EngineText::tr("the task has no variable %1; expected none at all")
                              .arg(excerpt(jsonText(name)))
                        : EngineText::tr("the task has no variable %1; expected %2")
                              .arg(excerpt(jsonText(name)), listText(known));
    return {Problem::Reason::UnknownVariable,
            {},
            place,
            withSuggestion(message, nearestName(name, known))};
}

Problem unknownVariables(const QString &place, const QStringList &names, const QStringList &known)
{
    if (names.size() == 1)
        return unknownVariable(place, names.first(), known);
    QStringList quoted;
    for (const QString &name : names)
        quoted.append(jsonText(name));
    const QString found = excerpt(listText(quoted));
    return {Problem::Reason::UnknownVariable,
            {},
            place,
            known.isEmpty()
                ? EngineText::tr("the task has no variables %1; expected none at all").arg(found)
                : EngineText::tr("the task has no variables %1; expected %2")
                      .arg(found, listText(known))};
}
