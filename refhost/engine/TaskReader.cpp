#include "refhost/engine/TaskReader.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/FileBytes.h"
#include "refhost/engine/JsonReader.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PackedFrame.h"
#include "refhost/engine/PropertyValue.h"
#include "refhost/engine/TaskProblem.h"
#include "refhost/engine/TaskUnpacker.h"
#include "refhost/engine/VarTypeName.h"

#include "Operation.h"

namespace {

Problem at(const QString &place, Problem problem)
{
    problem.place = place;
    return problem;
}

QString typeKey()
{
    return QStringLiteral("type");
}

QString typePlace(const QString &place)
{
    return place + QLatin1Char('.') + typeKey();
}

/// The first key of `json` that nobody reads.
std::optional<Problem> findUnknownKey(const JsonObject &json, const QStringList &known,
                                      const QString &place)
{
    for (const JsonMember &member : json) {
        if (!known.contains(member.key))
            return unknownKey(place, member.key, known);
    }
    return std::nullopt;
}

Result<TaskVariable> readVariable(const QString &name, const JsonValue &json, const QString &place)
{
    if (name.isEmpty())
        return emptyName(place);
    if (!json.isObject())
        return wrongKind(place, json, EngineText::tr("an object with \"type\" and \"value\""));
    const JsonObject settings = json.toObject();
    const QString valueKey = QStringLiteral("value");
    if (const auto problem = findUnknownKey(settings, {typeKey(), valueKey}, place))
        return *problem;
    const JsonValue typeWord = settings.value(typeKey());
    TaskVariable variable{name, varTypeFromName(typeWord.toString()), {}};
    if (variable.type == VarType::None)
        return unknownType(typePlace(place), typeWord, varTypeNames());
    if (settings.contains(valueKey)) {
        const Result<QVariant> start = variantFromJson(settings.value(valueKey), variable.type);
        if (!start)
            return at(place + QLatin1Char('.') + valueKey, start.problem());
        variable.value = start.value();
    }
    return variable;
}

std::optional<Problem> readVariables(const JsonValue &json, const QString &place, Task &task)
{
    if (json.isUndefined())
        return std::nullopt;
    if (!json.isObject())
        return wrongKind(place, json, EngineText::tr("an object of variables"));
    const JsonObject variables = json.toObject();
    for (const JsonMember &member : variables) {
        const Result<TaskVariable> variable =
            readVariable(member.key, member.value, place + QLatin1Char('.') + member.key);
        if (!variable)
            return variable.problem();
        task.variables.append(variable.value());
    }
    return std::nullopt;
}

/// Sets the properties of a step that is still at its defaults; the key "type" is no property.
std::optional<Problem> applySettings(Operation &step, const JsonObject &settings,
                                     const QString &place)
{
    const OperationSchema schema(step);
    for (const JsonMember &member : settings) {
        if (member.key == typeKey())
            continue;
        const QString propertyPlace = place + QLatin1Char('.') + member.key;
        const PropertySchema *const property = schema.property(member.key);
        if (!property) {
            return unknownProperty(propertyPlace, member.key, step.typeId(),
                                   schema.propertyNames());
        }
        const Result<QVariant> value = propertyFromJson(member.value, *property);
        if (!value)
            return at(propertyPlace, value.problem());
        step.setProperty(property->name.toLatin1().constData(), value.value());
    }
    return std::nullopt;
}

} // namespace

TaskReader::TaskReader(const OperationCatalog &catalog)
    : m_catalog(catalog)
{
}

Result<Task> TaskReader::readFile(const QString &path) const
{
    const Result<QByteArray> bytes = readFileBytes(path);
    if (!bytes)
        return bytes.problem();
    Result<Task> task = readBytes(bytes.value());
    if (task)
        return task;
    Problem problem = task.problem();
    problem.file = path;
    return problem;
}

Result<Task> TaskReader::readBytes(const QByteArray &bytes) const
{
    if (isPackedTask(bytes))
        return unpackTask(bytes, m_catalog);
    const Result<JsonObject> json = parseJsonObject(bytes, {});
    if (!json)
        return json.problem();
    return read(json.value());
}

Result<Task> TaskReader::read(const JsonObject &json) const
{
    const QString variablesKey = QStringLiteral("variables");
    const QString stepsKey = QStringLiteral("steps");
    if (const auto problem = findUnknownKey(json, {variablesKey, stepsKey}, {}))
        return *problem;
    Task task;
    if (const auto problem = readVariables(json.value(variablesKey), variablesKey, task))
        return *problem;
    if (const auto problem = readSteps(json.value(stepsKey), stepsKey, task))
        return *problem;
    return task;
}

std::optional<Problem> TaskReader::readSteps(const JsonValue &json, const QString &place,
                                             Task &task) const
{
    if (!json.isArray())
        return wrongKind(place, json, EngineText::tr("an array of steps"));
    const JsonArray list = json.toArray();
    for (int i = 0; i < list.size(); ++i) {
        auto step = readStep(list.at(i), QStringLiteral("%1[%2]").arg(place).arg(i));
        if (!step)
            return step.problem();
        task.steps.push_back(std::move(step.value()));
    }
    return std::nullopt;
}

Result<std::unique_ptr<Operation>> TaskReader::readStep(const JsonValue &json,
                                                        const QString &place) const
{
    if (!json.isObject())
        return wrongKind(place, json, EngineText::tr("an object with \"type\" and properties"));
    const JsonObject settings = json.toObject();
    const JsonValue typeId = settings.value(typeKey());
    const CatalogEntry *const entry = m_catalog.find(typeId.toString());
    if (!entry)
        return unknownType(typePlace(place), typeId, m_catalog.typeIds());
    std::unique_ptr<Operation> step(entry->prototype->clone(nullptr));
    if (const auto problem = applySettings(*step, settings, place))
        return *problem;
    return step;
}
