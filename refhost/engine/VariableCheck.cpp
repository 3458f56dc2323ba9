#include "refhost/engine/VariableCheck.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/ExactValue.h"
#include "refhost/engine/TaskProblem.h"
#include "refhost/engine/ValueType.h"
#include "refhost/engine/VarTypeName.h"

namespace {

QString expectation(VarType type)
{
    switch (type) {
    case VarType::Int:
        return EngineText::tr("a 32-bit number");
    case VarType::Double:
        return EngineText::tr("a floating-point number");
    case VarType::String:
        return EngineText::tr("a text");
    case VarType::Bool:
        return EngineText::tr("true or false");
    case VarType::List:
        return EngineText::tr("a list");
    case VarType::Table:
    case VarType::None:
        break;
    }
    return EngineText::tr("a list of rows, each a list");
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
                       EngineText::tr("a name that stands there already; expected another")};
    }
    if (varTypeName(variable.type).isEmpty()) {
        return unknownType(place + QStringLiteral(".type"), static_cast<int>(variable.type),
                           varTypeNames());
    }
    if (variable.value.isValid() && !fitsType(variable.value, variable.type)) {
        return Problem{Problem::Reason::UnfitValue,
                       {},
                       place + QStringLiteral(".value"),
                       EngineText::tr("%1; expected %2")
                           .arg(valueWords(variable.value), expectation(variable.type))};
    }
    m_names.insert(variable.name);
    return std::nullopt;
}
