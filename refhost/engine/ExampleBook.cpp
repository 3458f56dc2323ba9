#include "refhost/engine/ExampleBook.h"

#include "refhost/engine/JsonFile.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/PluginFolder.h"

#include <QFileInfo>
#include <QJsonArray>

#include <optional>

namespace {

using Reason = Problem::Reason;

/// The members an object may have, with what each has to be.
using Members = QMap<QString, QJsonValue::Type>;

Members pageMembers()
{
    return {{QStringLiteral("about"), QJsonValue::String},
            {QStringLiteral("examples"), QJsonValue::Array}};
}

/// Those of an example, less "result", which may be anything.
Members exampleMembers()
{
    return {{QStringLiteral("name"), QJsonValue::String},
            {QStringLiteral("variables"), QJsonValue::Object},
            {QStringLiteral("settings"), QJsonValue::Object},
            {QStringLiteral("into"), QJsonValue::String},
            {QStringLiteral("warnings"), QJsonValue::Array}};
}

QString kindName(QJsonValue::Type kind)
{
    switch (kind) {
    case QJsonValue::String:
        return QStringLiteral("a string");
    case QJsonValue::Array:
        return QStringLiteral("an array");
    default:
        return QStringLiteral("an object");
    }
}

/// The first member that is unknown or of the wrong kind.
std::optional<Problem> findFault(const QJsonObject &json, const Members &members,
                                 const QString &place)
{
    for (auto member = json.begin(); member != json.end(); ++member) {
        const QString memberPlace = place + QLatin1Char('.') + member.key();
        if (!members.contains(member.key())) {
            const QString known = QStringList(members.keys()).join(QLatin1String(", "));
            return Problem{Reason::UnknownKey,
                           {},
                           memberPlace,
                           QStringLiteral("unknown key; expected %1").arg(known)};
        }
        const QJsonValue::Type kind = members.value(member.key());
        if (member->type() != kind)
            return wrongKind(memberPlace, *member, kindName(kind));
    }
    return std::nullopt;
}

/// The members that running an example adds itself.
std::optional<Problem> findReserved(const WorkedExample &example, const QString &place)
{
    if (example.settings.contains(QLatin1String("type"))) {
        return Problem{Reason::UnknownKey,
                       {},
                       place + QStringLiteral(".settings.type"),
                       QStringLiteral("the type is that of the page; expected properties")};
    }
    if (example.variables.contains(QLatin1String("result"))) {
        return Problem{Reason::UnknownKey,
                       {},
                       place + QStringLiteral(".variables.result"),
                       QStringLiteral("the result is declared by \"into\"; expected other names")};
    }
    return std::nullopt;
}

Result<WorkedExample> exampleFromJson(const QJsonValue &value, const QString &place)
{
    if (!value.isObject())
        return wrongKind(place, value, kindName(QJsonValue::Object));
    QJsonObject json = value.toObject();
    WorkedExample example;
    const QString resultKey = QStringLiteral("result");
    example.result = json.value(resultKey);
    json.remove(resultKey);
    if (auto fault = findFault(json, exampleMembers(), place))
        return *fault;
    example.name = json.value(QLatin1String("name")).toString();
    example.variables = json.value(QLatin1String("variables")).toObject();
    example.settings = json.value(QLatin1String("settings")).toObject();
    example.into = json.value(QLatin1String("into")).toString(QStringLiteral("string"));
    const QJsonArray warnings = json.value(QLatin1String("warnings")).toArray();
    for (const QJsonValue &line : warnings)
        example.warnings.append(line.toString());
    if (auto fault = findReserved(example, place))
        return *fault;
    return example;
}

Result<OperationPage> pageFromJson(const QJsonValue &value, const QString &place)
{
    if (!value.isObject())
        return wrongKind(place, value, kindName(QJsonValue::Object));
    const QJsonObject json = value.toObject();
    if (auto fault = findFault(json, pageMembers(), place))
        return *fault;
    OperationPage page;
    page.about = json.value(QLatin1String("about")).toString();
    const QJsonArray examples = json.value(QLatin1String("examples")).toArray();
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

std::optional<Problem> ExampleBook::add(const QJsonObject &json, const OperationCatalog &catalog)
{
    for (auto member = json.begin(); member != json.end(); ++member) {
        if (!catalog.find(member.key())) {
            return Problem{Reason::UnknownType,
                           {},
                           member.key(),
                           QStringLiteral("no such operation; expected %1")
                               .arg(catalog.typeIds().join(QLatin1String(", ")))};
        }
        const Result<OperationPage> page = pageFromJson(*member, member.key());
        if (!page)
            return page.problem();
        m_pages.insert(member.key(), page.value());
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
        const Result<QJsonObject> json = readJsonObject(file);
        if (!json)
            return json.problem();
        if (auto problem = book.add(json.value(), catalog)) {
            problem->file = file;
            return *problem;
        }
    }
    return book;
}
