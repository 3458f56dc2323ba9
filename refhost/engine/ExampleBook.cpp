#include "refhost/engine/ExampleBook.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonFile.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/PluginFolder.h"

#include <QFileInfo>

#include <optional>

namespace {

using Reason = Problem::Reason;

/// A kind of JSON value, as messages name it.
struct Kind
{
    QString name;
    bool (JsonValue::*isOf)() const; ///< null where any kind will do
};

/// The members an object may have, with what each has to be.
using Members = QMap<QString, Kind>;

Kind stringKind()
{
    return {EngineText::tr("a string"), &JsonValue::isString};
}

Kind arrayKind()
{
    return {EngineText::tr("an array"), &JsonValue::isArray};
}

Kind objectKind()
{
    return {EngineText::tr("an object"), &JsonValue::isObject};
}

Members pageMembers()
{
    return {{QStringLiteral("about"), stringKind()}, {QStringLiteral("examples"), arrayKind()}};
}

QString resultKey()
{
    return QStringLiteral("result");
}

/// Those of an example.
Members exampleMembers()
{
    return {{QStringLiteral("name"), stringKind()},
            {QStringLiteral("variables"), objectKind()},
            {QStringLiteral("settings"), objectKind()},
            {QStringLiteral("into"), stringKind()},
            {resultKey(), {{}, nullptr}},
            {QStringLiteral("warnings"), arrayKind()}};
}

/// The first member that is unknown or of the wrong kind.
std::optional<Problem> findFault(const JsonObject &json, const Members &members,
                                 const QString &place)
{
    for (const JsonMember &member : json) {
        const QString memberPlace = place + QLatin1Char('.') + member.key;
        if (!members.contains(member.key)) {
            const QStringList known = members.keys();
            const QString message =
                EngineText::tr("unknown key; expected %1").arg(known.join(QLatin1String(", ")));
            return Problem{Reason::UnknownKey,
                           {},
                           memberPlace,
                           withSuggestion(message, nearestName(member.key, known))};
        }
        const Kind kind = members.value(member.key);
        if (kind.isOf && !(member.value.*kind.isOf)())
            return wrongKind(memberPlace, member.value, kind.name);
    }
    return std::nullopt;
}

/// The members that running an example adds itself.
std::optional<Problem> findReserved(const WorkedExample &example, const QString &place)
{
    if (example.settings.contains(QStringLiteral("type"))) {
        return Problem{Reason::UnknownKey,
                       {},
                       place + QStringLiteral(".settings.type"),
                       EngineText::tr("the type is that of the page; expected properties")};
    }
    if (example.variables.contains(QStringLiteral("result"))) {
        return Problem{Reason::UnknownKey,
                       {},
                       place + QStringLiteral(".variables.result"),
                       EngineText::tr("the result is declared by \"into\"; expected other names")};
    }
    return std::nullopt;
}

Result<WorkedExample> exampleFromJson(const JsonValue &value, const QString &place)
{
    if (!value.isObject())
        return wrongKind(place, value, objectKind().name);
    const JsonObject json = value.toObject();
    WorkedExample example;
    example.result = json.value(resultKey());
    if (auto fault = findFault(json, exampleMembers(), place))
        return *fault;
    example.name = json.value(QStringLiteral("name")).toString();
    example.variables = json.value(QStringLiteral("variables")).toObject();
    example.settings = json.value(QStringLiteral("settings")).toObject();
    example.into = json.value(QStringLiteral("into")).toString(QStringLiteral("string"));
    const JsonArray warnings = json.value(QStringLiteral("warnings")).toArray();
    for (const JsonValue &line : warnings)
        example.warnings.append(line.toString());
    if (auto fault = findReserved(example, place))
        return *fault;
    return example;
}

Result<OperationPage> pageFromJson(const JsonValue &value, const QString &place)
{
    if (!value.isObject())
        return wrongKind(place, value, objectKind().name);
    const JsonObject json = value.toObject();
    if (auto fault = findFault(json, pageMembers(), place))
        return *fault;
    OperationPage page;
    page.about = json.value(QStringLiteral("about")).toString();
    const JsonArray examples = json.value(QStringLiteral("examples")).toArray();
    for (int i = 0; i < examples.size(); ++i) {
        const Result<WorkedExample> example =
            exampleFromJson(examples.at(i), QStringLiteral("%1.examples[%2]").arg(place).arg(i));
        if (!example)
            return example.problem();
        page.examples.append(example.value());
    }
    return page;
}

} // namespace

std::optional<Problem> ExampleBook::add(const JsonObject &json, const OperationCatalog &catalog)
{
    for (const JsonMember &member : json) {
        if (!catalog.find(member.key)) {
            const QStringList known = catalog.typeIds();
            const QString message = EngineText::tr("no such operation; expected %1")
                                        .arg(known.join(QLatin1String(", ")));
            return Problem{Reason::UnknownType,
                           {},
                           member.key,
                           withSuggestion(message, nearestName(member.key, known))};
        }
        const Result<OperationPage> page = pageFromJson(member.value, member.key);
        if (!page)
            return page.problem();
        m_pages.insert(member.key, page.value());
    }
    return std::nullopt;
}

Result<ExampleBook> ExampleBook::read(const OperationCatalog &catalog)
{
    ExampleBook book;
    for (const LoadedPlugin &plugin : catalog.plugins()) {
        const QString file = fileBeside(plugin.path(), QStringLiteral(".examples.json"));
        if (!QFileInfo::exists(file))
            continue;
        const Result<JsonObject> json = readJsonObject(file);
        if (!json)
            return json.problem();
        if (auto problem = book.add(json.value(), catalog)) {
            problem->file = file;
            return *problem;
        }
    }
    return book;
}
