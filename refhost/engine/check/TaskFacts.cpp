#include "refhost/engine/check/TaskFacts.h"

#include "refhost/engine/OperationCatalog.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/VarTypeName.h"

#include "Operation.h"

#include <QStringList>
#include <QVariantList>

#include <algorithm>

namespace {

Setting readSetting(const Operation &step, const PropertySchema &schema)
{
    Setting setting;
    setting.typeId = step.typeId();
    setting.schema = schema;
    setting.role = roleOf(schema);
    setting.isShown = isShown(schema, step);
    setting.value = step.property(schema.name.toLatin1().constData());
    if (setting.role == PropertyRole::Text || setting.role == PropertyRole::Number)
        setting.operand = readOperand(setting.text());
    return setting;
}

/// The schemas of the operations met so far, each read once.
class Schemas
{
public:
    explicit Schemas(const OperationCatalog &catalog)
        : m_catalog(catalog)
    {
    }

    QList<PropertySchema> of(const Operation &step)
    {
        const QString typeId = step.typeId();
        if (!m_read.contains(typeId)) {
            const CatalogEntry *const entry = m_catalog.find(typeId);
            m_read.insert(typeId, OperationSchema(entry ? *entry->prototype : step).properties());
        }
        return m_read.value(typeId);
    }

private:
    const OperationCatalog &m_catalog;
    QHash<QString, QList<PropertySchema>> m_read;
};

QStringList namesOf(const QList<TaskVariable> &variables)
{
    QStringList names;
    for (const TaskVariable &variable : variables)
        names.append(variable.name);
    return names;
}

/// Whether a text or a list has nothing in it; of a number and a truth value nobody can tell.
bool isBlank(const TaskVariable &variable)
{
    if (holdsElements(variable.type))
        return variable.value.toList().isEmpty();
    return variable.type == VarType::String && variable.value.toString().isEmpty();
}

} // namespace

bool holdsElements(VarType type)
{
    return type == VarType::List || type == VarType::Table;
}

bool namesType(const QString &words, VarType type)
{
    const QStringList list = words.split(QLatin1Char(','));
    for (const QString &word : list) {
        const VarType named = varTypeFromName(word);
        const bool isScalar = word == QLatin1String("scalar");
        if (isScalar && (type == VarType::Int || type == VarType::Double))
            return true;
        if (!isScalar && (named == VarType::None || named == type))
            return true;
    }
    return false;
}

bool asksForNumbers(const PropertySchema &schema)
{
    return !schema.restriction.isEmpty() && (namesType(schema.restriction, VarType::Int) ||
                                             namesType(schema.restriction, VarType::Double));
}

bool isAskedFor(const PropertySchema &schema, VarType type)
{
    if (schema.restriction.isEmpty() || namesType(schema.restriction, type))
        return true;
    return schema.restrictionKey == QLatin1String("varref_kind") && !holdsElements(type) &&
           namesType(schema.restriction, VarType::String);
}

bool takesResult(const PropertySchema &schema, VarType type)
{
    if (schema.restriction.isEmpty() || namesType(schema.restriction, type))
        return true;
    return asksForNumbers(schema) && !holdsElements(type);
}

TaskFacts::TaskFacts(const Task &task, const OperationCatalog &catalog)
    : m_variables(task.variables)
    , m_names(namesOf(task.variables))
{
    for (int i = 0; i < m_variables.size(); ++i)
        m_places.insert(m_variables.at(i).name, i);
    readSteps(task, catalog);
    for (const QVector<Setting> &step : qAsConst(m_steps)) {
        for (const Setting &setting : step)
            noteUse(setting);
    }
}

void TaskFacts::readSteps(const Task &task, const OperationCatalog &catalog)
{
    Schemas schemas(catalog);
    for (const auto &step : task.steps) {
        QVector<Setting> settings;
        const QList<PropertySchema> properties = schemas.of(*step);
        for (const PropertySchema &property : properties) {
            settings.append(readSetting(*step, property));
            settings.last().step = m_steps.size();
        }
        m_steps.append(settings);
    }
}

void TaskFacts::noteUse(const Setting &setting)
{
    const bool isName = setting.role == PropertyRole::Input || setting.role == PropertyRole::Result;
    if (!isName && !setting.operand.isReference)
        return;
    const QString name = isName ? setting.text() : setting.operand.name;
    m_used.insert(name);
    const TaskVariable *const declared = variable(name);
    if (setting.role != PropertyRole::Result)
        m_readers[name].append(&setting);
    else if (declared && takesResult(setting.schema, declared->type))
        m_writers[name].append(&setting);
}

const Setting *TaskFacts::sibling(const Setting &setting, const QString &name) const
{
    const QVector<Setting> &step = m_steps.at(setting.step);
    const auto found = std::find_if(
        step.begin(), step.end(), [&](const Setting &other) { return other.schema.name == name; });
    return found == step.end() ? nullptr : &*found;
}

const TaskVariable *TaskFacts::variable(const QString &name) const
{
    const auto place = m_places.find(name);
    return place == m_places.end() ? nullptr : &m_variables.at(*place);
}

QVariant TaskFacts::knownValue(const TaskVariable &variable) const
{
    const bool isKnown = variable.value.isValid() && writers(variable.name).isEmpty();
    return isKnown && !isBlank(variable) ? variable.value : QVariant();
}

VarType TaskFacts::typeBehind(const OperandText &operand) const
{
    const TaskVariable *const declared = variable(operand.name);
    if (!operand.isReference || !declared)
        return VarType::None;
    const QString member = operand.path.toLower();
    if (member.isEmpty() || (member == QLatin1String("items") && holdsElements(declared->type)))
        return declared->type;
    const bool counts = member == QLatin1String("count") || member == QLatin1String("rows") ||
                        (member == QLatin1String("columns") && mayHaveColumns(*declared));
    return counts && holdsElements(declared->type) ? VarType::Int : VarType::None;
}

bool TaskFacts::mayHaveColumns(const TaskVariable &variable) const
{
    const QVariantList rows = knownValue(variable).toList();
    return rows.isEmpty() || rows.first().userType() == QMetaType::QVariantList;
}
