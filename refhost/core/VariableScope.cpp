#include "VariableScope.h"

#include <QVariantMap>

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

// The names that `set` has written are kept in the hash itself, as the keys of a map under a name
// that no variable has: so they are copied and moved with the variables, and asking for them does
// not cost a walk over all variables. That name is the mark alone, which is no character; the hash
// keeps a variable whose name begins with the mark under the mark and its name.
constexpr QChar mark(0xFFFF);

QString nameOfWrites()
{
    return QString(mark);
}

/// Compares inline: this runs at each access to a variable.
bool beginsWithMark(const QString &name)
{
    return !name.isEmpty() && name.at(0) == mark;
}

QString keyOf(const QString &name)
{
    return beginsWithMark(name) ? mark + name : name;
}

QString nameOf(const QString &key)
{
    return beginsWithMark(key) ? key.mid(1) : key;
}

/// Returns the place of the variable called `name`, or the end of the hash.
template <typename Variables>
auto find(Variables &variables, const QString &name)
{
    // Almost no name needs a key of its own, and a copy of the name would cost time at each access.
    return Q_UNLIKELY(beginsWithMark(name)) ? variables.find(keyOf(name)) : variables.find(name);
}

/// Returns the names that were written, as the keys of a map, to be changed in place.
template <typename Variables>
QVariantMap &writes(Variables &variables)
{
    QVariant &names = variables[nameOfWrites()].value;
    if (!names.isValid())
        names = QVariantMap();
    return *static_cast<QVariantMap *>(names.data());
}

} // namespace

QVariant VariableScope::get(const QString &name) const
{
    const auto variable = find(m_variables, name);
    return variable == m_variables.cend() ? QVariant() : variable->value;
}

void VariableScope::set(const QString &name, const QVariant &value)
{
    const auto variable = find(m_variables, name);
    if (variable == m_variables.end())
        return;
    variable->value = value;
    if (variable->written)
        return;
    variable->written = true;
    writes(m_variables).insert(name, QVariant());
}

VarType VariableScope::typeOf(const QString &name) const
{
    const auto variable = find(m_variables, name);
    return variable == m_variables.cend() ? VarType::None : variable->type;
}

void VariableScope::declare(const QString &name, VarType type, const QVariant &value)
{
    const QString key = keyOf(name);
    if (m_variables.value(key).written)
        writes(m_variables).remove(name);
    if (type == VarType::None)
        m_variables.remove(key);
    else
        m_variables.insert(key, {type, value.isValid() ? value : emptyValue(type), false});
}

QStringList VariableScope::names() const
{
    QStringList names;
    names.reserve(m_variables.size());
    for (auto variable = m_variables.cbegin(); variable != m_variables.cend(); ++variable) {
        if (variable->type != VarType::None)
            names.append(nameOf(variable.key()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

QStringList VariableScope::writtenNames() const
{
    return m_variables.value(nameOfWrites()).value.toMap().keys();
}

void VariableScope::forgetWrites()
{
    const QVariantMap written = m_variables.take(nameOfWrites()).value.toMap();
    for (auto name = written.keyBegin(); name != written.keyEnd(); ++name)
        find(m_variables, *name)->written = false;
}
