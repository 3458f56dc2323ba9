#include "refhost/runner/DescribeCommand.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/runner/Console.h"
#include "refhost/runner/ExitStatus.h"
#include "refhost/runner/Options.h"
#include "refhost/runner/PropertyRemarks.h"
#include "refhost/runner/RunnerText.h"
#include "refhost/runner/TextColumns.h"

#include "Operation.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonObject propertyToJson(const PropertySchema &property)
{
    QJsonObject json{{QStringLiteral("name"), property.name},
                     {QStringLiteral("type"), property.typeName},
                     {QStringLiteral("label"), property.shownLabel},
                     {QStringLiteral("default"), QJsonValue::fromVariant(property.defaultValue)}};
    if (!property.editor.isEmpty())
        json.insert(QStringLiteral("editor"), property.editor);
    if (!property.restrictionKey.isEmpty())
        json.insert(property.restrictionKey, property.restriction);
    if (!property.choices.isEmpty())
        json.insert(QStringLiteral("choices"), QJsonArray::fromStringList(property.choices));
    if (!property.conditionName.isEmpty()) {
        QJsonArray values;
        for (const int value : property.conditionValues)
            values.append(value);
        json.insert(QStringLiteral("showWhen"),
                    QJsonObject{{QStringLiteral("property"), property.conditionName},
                                {QStringLiteral("values"), values}});
    }
    return json;
}

QJsonObject operationToJson(const CatalogEntry &entry, const OperationSchema &schema)
{
    QJsonArray properties;
    for (const PropertySchema &property : schema.properties())
        properties.append(propertyToJson(property));
    return {{QStringLiteral("typeId"), entry.typeId},
            {QStringLiteral("name"), entry.prototype->typeName()},
            {QStringLiteral("root"), entry.root},
            {QStringLiteral("icon"), entry.prototype->icon()},
            {QStringLiteral("properties"), properties}};
}

void printOperation(const CatalogEntry &entry, const OperationSchema &schema, Console &console)
{
    console.print(QStringLiteral("%1  %2  %3")
                      .arg(entry.typeId, entry.prototype->typeName(), entry.prototype->icon()));
    QList<QStringList> rows{{RunnerText::tr("PROPERTY"), RunnerText::tr("LABEL"),
                             RunnerText::tr("EDITOR"), RunnerText::tr("DEFAULT"),
                             RunnerText::tr("REMARKS")}};
    for (const PropertySchema &property : schema.properties()) {
        rows.append({property.name, property.shownLabel, editorOf(property),
                     jsonText(variantToJson(property.defaultValue)), remarksOn(property)});
    }
    const QStringList lines = alignColumns(rows);
    for (const QString &line : lines)
        console.print(line);
}

} // namespace

QString DescribeCommand::name() const
{
    return QStringLiteral("describe");
}

QString DescribeCommand::summary() const
{
    return QStringLiteral("Shows the properties of an operation as its editor is told about them.");
}

QString DescribeCommand::example() const
{
    return QStringLiteral("oprun describe text.pad");
}

QStringList DescribeCommand::arguments() const
{
    return {QStringLiteral("TYPE")};
}

QList<QCommandLineOption> DescribeCommand::options() const
{
    return {Options::json()};
}

bool DescribeCommand::isForPrograms(const QCommandLineParser &options) const
{
    return options.isSet(Options::json());
}

int DescribeCommand::runWith(const OperationCatalog &catalog, const QCommandLineParser &options,
                             const QStringList &arguments, Console &console) const
{
    const CatalogEntry *const entry = findOrComplain(catalog, arguments.first(), console);
    if (!entry)
        return BadInput;
    const OperationSchema schema(*entry->prototype);
    if (options.isSet(Options::json()))
        console.printJson(operationToJson(*entry, schema));
    else
        printOperation(*entry, schema, console);
    return Success;
}
