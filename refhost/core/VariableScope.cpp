#include "VariableScope.h"

#include <algorithm>

namespace {

QVariant emptyValue(VarType type)
{
    switch (type) {
    case VarType::Int:
        return 0;
    case VarType::Double:
        return 0.0;
    case VarType::String:
        return QStringLiteral("");
    case VarType::Bool:
        return false;
    case VarType::List:
    case VarType::Table:
        return QVariantList();
    case VarType::None:
        break;
    }
    return {};
}

} // namespace

QVariant VariableScope::get(const QString &name) const
{
    const auto variable = m_variables.constFind(name);
    return variable == m_variables.cend() ? QVariant() : variable->value;
}

void VariableScope::set(const QString &name, const QVariant &value)
{
    const auto variable = m_variables.find(name);
    if (variable == m_variables.end())
        return;
    variable->value = value;
    variable->written = true;
}

VarType VariableScope::typeOf(const QString &name) const
{
    const auto variable = m_variables.constFind(name);
    return variable == m_variables.cend() ? VarType::None : variable->type;
}

void VariableScope::declare(const QString &name, VarType type, const QVariant &value)
{
    if (type == VarType::None)
        m_variables.remove(name);
    else
        m_variables.insert(name, {type, value.isValid() ? value : emptyValue(type), false});
}

QStringList VariableScope::names() const
{
    QStringList names = m_variables.keys();
    std::sort(names.begin(), names.end());
    return names;
}

QStringList VariableScope::writtenNames() const
{
    QStringList names;
    for (auto variable = m_variables.cbegin(); variable != m_variables.cend(); ++variable) {
        if (variable->written)
            names.append(variable.key());
    }
    std::sort(names.begin(), names.end());
    return names;
}

void VariableScope::forgetWrites()
{
    for (Variable &variable : m_variables)
        variable.written = false;
}
