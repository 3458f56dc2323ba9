#include "refhost/workbench/variables/VariableRename.h"

#include "refhost/engine/OperandText.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"

#include "Operation.h"

#include <QCoreApplication>
#include <QSet>

#include <optional>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(VariableRename)
};

bool isOperand(PropertyRole role)
{
    return role == PropertyRole::Text || role == PropertyRole::Number;
}

bool isBareName(PropertyRole role)
{
    return role == PropertyRole::Input || role == PropertyRole::Result;
}

QVariant valueOf(const Operation &step, const PropertySchema &property)
{
    return step.property(property.name.toUtf8().constData());
}

bool names(const Operation &step, const PropertySchema &property, const QString &name)
{
    const QVariant value = valueOf(step, property);
    if (value.userType() != QMetaType::QString)
        return false;
    const PropertyRole role = roleOf(property);
    if (isBareName(role))
        return value.toString() == name;
    const OperandText operand = readOperand(value.toString());
    return isOperand(role) && operand.isReference && operand.name == name;
}

/// The reference with another name, none when it would be read otherwise.
std::optional<QString> renamedReference(const QString &text, const QString &oldName,
                                        const QString &newName)
{
    const QString renamed = QLatin1Char('$') + newName + text.mid(1 + oldName.size());
    const OperandText operand = readOperand(renamed);
    if (!operand.isReference || operand.name != newName || operand.path != readOperand(text).path)
        return std::nullopt;
    return renamed;
}

/// The text of a property that names the variable, under the new name.
std::optional<QString> renamedText(const Operation &step, const PropertySchema &property,
                                   const QString &oldName, const QString &newName)
{
    if (isBareName(roleOf(property)))
        return newName;
    return renamedReference(valueOf(step, property).toString(), oldName, newName);
}

/// Calls `visit` with each property of the step that names the variable.
template <typename Visit>
void forEachUse(const Operation &step, const QString &name, Visit visit)
{
    const OperationSchema schema(step);
    for (const PropertySchema &property : schema.properties()) {
        if (names(step, property, name))
            visit(property);
    }
}

void renameInStep(StepState &step, const QString &oldName, const QString &newName)
{
    std::shared_ptr<Operation> edited;
    forEachUse(*step.operation, oldName, [&](const PropertySchema &property) {
        const auto text = renamedText(*step.operation, property, oldName, newName);
        if (!text)
            return;
        if (!edited)
            edited.reset(step.operation->clone(nullptr));
        edited->setProperty(property.name.toUtf8().constData(), *text);
    });
    if (edited)
        step.operation = std::move(edited);
}

QString withoutNumber(const QString &name)
{
    int size = name.size();
    while (size > 0 && name.at(size - 1).isDigit())
        --size;
    return name.left(size);
}

} // namespace

QVector<VariableUse> variableUses(const TaskState &state, const QString &name)
{
    QVector<VariableUse> uses;
    for (const StepState &step : state.steps) {
        forEachUse(*step.operation, name, [&](const PropertySchema &property) {
            uses.append({step.id, property.name});
        });
    }
    return uses;
}

TaskState withVariableRenamed(const TaskState &state, int id, const QString &name, bool inSteps)
{
    const VariableState *const found = state.variable(id);
    if (!found)
        return state;
    TaskVariable renamed = found->variable;
    renamed.name = name;
    TaskState next = state.withVariableChanged(id, renamed);
    const QString oldName = found->variable.name;
    // An empty name would be that of every property left empty.
    if (!inSteps || oldName.isEmpty() || oldName == name)
        return next;
    for (StepState &step : next.steps)
        renameInStep(step, oldName, name);
    return next;
}

bool breaksReferences(const TaskState &state, const QString &oldName, const QString &newName)
{
    bool breaks = false;
    for (const StepState &step : state.steps) {
        forEachUse(*step.operation, oldName, [&](const PropertySchema &property) {
            breaks |= !renamedText(*step.operation, property, oldName, newName);
        });
    }
    return breaks;
}

QString nameRefusal(const TaskState &state, int id, const QString &name)
{
    if (name.isEmpty())
        return Texts::tr("变量需要一个名称。");
    for (const VariableState &other : state.variables) {
        if (other.id != id && other.variable.name == name)
            return Texts::tr("已有名为“%1”的变量，请换一个名称。").arg(name);
    }
    return {};
}

QString freeVariableName(const TaskState &state, const QString &name)
{
    const QStringList names = state.variableNames();
    const QSet<QString> taken(names.cbegin(), names.cend());
    const QString base = withoutNumber(name);
    for (int number = 1;; ++number) {
        QString candidate = base + QString::number(number);
        if (!taken.contains(candidate))
            return candidate;
    }
}
