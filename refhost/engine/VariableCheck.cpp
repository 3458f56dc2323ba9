#include "refhost/engine/VariableCheck.h"

#include "refhost/engine/ExactValue.h"
#include "refhost/engine/TaskProblem.h"
#include "refhost/engine/VarTypeName.h"

#include <algorithm>

namespace {

bool isList(const QVariant &value)
{
    return value.userType() == QMetaType::QVariantList;
}

bool isTable(const QVariant &value)
{
    const QVariantList rows = value.toList();
    return isList(value) && std::all_of(rows.begin(), rows.end(), isList);
}

bool fits(const QVariant &value, VarType type)
{
    switch (type) {
    case VarType::Int:
        return value.userType() == QMetaType::Int;
    case VarType::Double:
        return value.userType() == QMetaType::Double;
    case VarType::String:
        return value.userType() == QMetaType::QString;
    case VarType::Bool:
        return value.userType() == QMetaType::Bool;
    case VarType::List:
        return isList(value);
    case VarType::Table:
        return isTable(value);
    case VarType::None:
        break;
    }
    return false;
}

QString expectation(VarType type)
{
    switch (type) {
    case VarType::Int:
        return QStringLiteral("a 32-bit number");
    case VarType::Double:
        return QStringLiteral("a floating-point number");
    case VarType::String:
        return QStringLiteral("a text");
    case VarType::Bool:
        return QStringLiteral("true or false");
    case VarType::List:
        return QStringLiteral("a list");
    case VarType::Table:
    case VarType::None:
        break;
    }
    return QStringLiteral("a list of rows, each a list");
}

} // namespace

std::optional<Problem> VariableCheck::check(const TaskVariable &variable)
{
    const QString place = variablePlace(variable.name);
    if (variable.name.isEmpty())
        return emptyName(place);
    if (m_names.contains(variable.name)) {
        return Problem{Problem::Reason::UnfitValue,
                       {},
                       place,
                       QStringLiteral("a name that stands there already; expected another")};
    }
    if (varTypeName(variable.type).isEmpty()) {
        return unknownType(place + QStringLiteral(".type"), static_cast<int>(variable.type),
                           varTypeNames());
    }
    if (variable.value.isValid() && !fits(variable.value, variable.type)) {
        return Problem{Problem::Reason::UnfitValue,
                       {},
                       place + QStringLiteral(".value"),
                       QStringLiteral("%1; expected %2")
                           .arg(valueWords(variable.value), expectation(variable.type))};
    }
    m_names.insert(variable.name);
    return std::nullopt;
}
