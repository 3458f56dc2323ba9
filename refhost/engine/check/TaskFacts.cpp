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

bool isSearchText(const Setting &setting)
{
    return setting.facts.purpose == Purpose::SearchText ||
           setting.facts.purpose == Purpose::Marker || setting.facts.purpose == Purpose::Separator;
}

TaskFacts::TaskFacts(const Task &task, const OperationCatalog &catalog, const FactBook &book)
    : m_variables(task.variables)
    , m_names(namesOf(task.variables))
{
    for (int i = 0; i < m_variables.size(); ++i)
        m_places.insert(m_variables.at(i).name, i);
    readSteps(task, catalog, book);
    for (const QVector<Setting> &step : qAsConst(m_steps)) {
        for (const Setting &setting : step)
            noteUse(setting);
    }
}

void TaskFacts::readSteps(const Task &task, const OperationCatalog &catalog, const FactBook &book)
{
    Schemas schemas(catalog);
    for (const auto &step : task.steps) {
        QVector<Setting> settings;
        const QList<PropertySchema> properties = schemas.of(*step);
        for (const PropertySchema &property : properties) {
            settings.append(readSetting(*step, property));
            settings.last().step = m_steps.size();
            settings.last().facts = book.property(step->typeId(), property.name);
        }
        m_steps.append(settings);
    }
}

void TaskFacts::noteUse(const Setting &setting)
{
    const bool isName = setting.role == PropertyRole::Input || setting.role == PropertyRole::Result;
    if (setting.facts.purpose == Purpose::SearchText)
        m_searched.insert(setting.text());
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

QVariant TaskFacts::valueAt(const OperandText &operand, int step) const
{
    if (!operand.isReference) {
        const auto number = literalNumber(operand.literal);
        return number ? QVariant(*number) : QVariant(operand.literal);
    }
    const TaskVariable *const declared = variable(operand.name);
    const bool isKnown = declared && operand.path.isEmpty() && declared->value.isValid() &&
                         !isBlank(*declared) && !writerBefore(operand.name, step);
    return isKnown ? declared->value : QVariant();
}

const Setting *TaskFacts::writerBefore(const QString &name, int step) const
{
    const QVector<const Setting *> all = writers(name);
    const auto next =
        std::lower_bound(all.begin(), all.end(), step,
                         [](const Setting *writer, int place) { return writer->step < place; });
    return next == all.begin() ? nullptr : *std::prev(next);
}

std::optional<QStringList> TaskFacts::textsBehind(const OperandText &operand, int step) const
{
    Origins origins;
    return collectOrigins(operand, step, origins) ? std::optional(origins.texts) : std::nullopt;
}

bool TaskFacts::collectOrigins(const OperandText &operand, int step, Origins &origins) const
{
    // Bounds the depth of the recursion, and the cost for each operand of a long task.
    constexpr int mostOperands = 50;
    if (++origins.operands > mostOperands)
        return false;
    const QVariant value = valueAt(operand, step);
    if (value.isValid()) {
        origins.texts.append(textOfValue(value));
        return true;
    }
    const Setting *const writer = writerBefore(operand.name, step);
    return writer && operand.path.isEmpty() && collectOriginsOfStep(writer->step, origins);
}

bool TaskFacts::collectOriginsOfStep(int step, Origins &origins) const
{
    for (const Setting &setting : m_steps.at(step)) {
        // A text that is searched for does not become part of the result.
        const bool isSource = setting.role == PropertyRole::Text && !isSearchText(setting);
        if (!setting.isShown || (!isSource && setting.role != PropertyRole::Input))
            continue;
        const OperandText operand =
            isSource ? setting.operand : readOperand(QLatin1Char('$') + setting.text());
        if (!collectOrigins(operand, step, origins))
            return false;
    }
    return true;
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
