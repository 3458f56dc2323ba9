#include "refhost/engine/ExampleBook.h"

#include "refhost/engine/JsonFile.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"

#include <QFileInfo>
#include <QJsonArray>

#include <optional>

namespace {

using Reason = Problem::Reason;

QString examplesFile(const QString &pluginFile)
{
    const QFileInfo info(pluginFile);
    return info.path() + QLatin1Char('/') + info.completeBaseName() +
           QStringLiteral(".examples.json");
}

WorkedExample exampleFromJson(const QJsonObject &json)
{
    WorkedExample example;
    example.name = json.value(QLatin1String("name")).toString();
    example.variables = json.value(QLatin1String("variables")).toObject();
    example.settings = json.value(QLatin1String("settings")).toObject();
    example.into = json.value(QLatin1String("into")).toString(QStringLiteral("string"));
    example.result = json.value(QLatin1String("result"));
    const QJsonArray warnings = json.value(QLatin1String("warnings")).toArray();
    for (const QJsonValue &line : warnings)
        example.warnings.append(line.toString());
    return example;
}

/// The first member of `json` that no example has.
std::optional<Problem> unknownMember(const QJsonObject &json, const QString &place)
{
    const QStringList known{QStringLiteral("name"),     QStringLiteral("variables"),
                            QStringLiteral("settings"), QStringLiteral("into"),
                            QStringLiteral("result"),   QStringLiteral("warnings")};
    const QStringList keys = json.keys();
    for (const QString &key : keys) {
        if (!known.contains(key)) {
            return Problem{Reason::UnknownKey,
                           {},
                           place,
                           QStringLiteral("unknown key %1; expected %2")
                               .arg(jsonText(key), known.join(QLatin1String(", ")))};
        }
    }
    return std::nullopt;
}

Result<OperationPage> pageFromJson(const QJsonObject &json, const QString &typeId)
{
    OperationPage page;
    page.about = json.value(QLatin1String("about")).toString();
    const QJsonArray examples = json.value(QLatin1String("examples")).toArray();
    for (int i = 0; i < examples.size(); ++i) {
        const QJsonObject example = examples.at(i).toObject();
        const QString place = QStringLiteral("%1.examples[%2]").arg(typeId).arg(i);
        if (auto problem = unknownMember(example, place))
            return *problem;
        page.examples.append(exampleFromJson(example));
    }
    return page;
}

} // namespace

Result<ExampleBook> ExampleBook::read(const OperationCatalog &catalog)
{
    ExampleBook book;
    for (const LoadedPlugin &plugin : catalog.plugins()) {
        const QString file = examplesFile(plugin.path());
        if (!QFileInfo::exists(file))
            continue;
        const Result<QJsonObject> json = readJsonObject(file);
        if (!json)
            return json.problem();
        for (auto member = json.value().begin(); member != json.value().end(); ++member) {
            if (!catalog.find(member.key())) {
                return Problem{Reason::UnknownType, file, member.key(),
                               QStringLiteral("no such operation; expected %1")
                                   .arg(catalog.typeIds().join(QLatin1String(", ")))};
            }
            const Result<OperationPage> page = pageFromJson(member->toObject(), member.key());
            if (!page) {
                Problem problem = page.problem();
                problem.file = file;
                return problem;
            }
            book.m_pages.insert(member.key(), page.value());
        }
    }
    return book;
}
