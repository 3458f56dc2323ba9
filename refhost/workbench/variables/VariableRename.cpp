#include "refhost/workbench/variables/VariableRename.h"

#include "refhost/engine/OperandText.h"
#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"
#include "refhost/workbench/document/VariableUses.h"

#include "Operation.h"

#include <optional>

namespace {

bool isBareName(PropertyRole role)
{
    return role == PropertyRole::Input || role == PropertyRole::Result;
}

QVariant valueOf(const Operation &step, const PropertySchema &property)
{
    return step.property(property.name.toUtf8().constData());
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
        if (namedVariable(property, valueOf(step, property)) == name)
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

} // namespace

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
