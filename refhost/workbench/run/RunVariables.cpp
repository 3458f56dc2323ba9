#include "refhost/workbench/run/RunVariables.h"

#include "refhost/workbench/document/TaskState.h"

#include <algorithm>

namespace {

bool sameDeclaration(const VariableState &left, const VariableState &right)
{
    return left.id == right.id && left.variable.name == right.variable.name &&
           left.variable.type == right.variable.type;
}

bool sameDeclarations(const QVector<VariableState> &left, const QVector<VariableState> &right)
{
    return left.isSharedWith(right) ||
           std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(), sameDeclaration);
}

QPair<int, int> keyOf(int id, VarType type)
{
    return {id, static_cast<int>(type)};
}

} // namespace

void RunVariables::start(const TaskState &state)
{
    m_known.clear();
    m_scope = {};
    for (const VariableState &entry : state.variables)
        m_scope.declare(entry.variable.name, entry.variable.type, entry.variable.value);
}

bool RunVariables::follow(const TaskState &before, const TaskState &after)
{
    if (sameDeclarations(before.variables, after.variables))
        return false;
    remember(before);
    m_scope = {};
    for (const VariableState &state : after.variables) {
        const TaskVariable &variable = state.variable;
        m_scope.declare(variable.name, variable.type, valueOf(state.id, variable));
    }
    return true;
}

void RunVariables::remember(const TaskState &state)
{
    // While a name is typed it may be that of another variable: the scope holds the last one.
    QHash<QString, int> holders;
    for (const VariableState &variable : state.variables)
        holders.insert(variable.variable.name, variable.id);
    for (auto holder = holders.cbegin(); holder != holders.cend(); ++holder) {
        const QString &name = holder.key();
        m_known.insert(keyOf(holder.value(), m_scope.typeOf(name)), m_scope.get(name));
    }
}

QVariant RunVariables::valueOf(int id, const TaskVariable &variable) const
{
    return m_known.value(keyOf(id, variable.type), variable.value);
}
