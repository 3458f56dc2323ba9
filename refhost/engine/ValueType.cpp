#include "refhost/engine/ValueType.h"

#include <QVariantList>

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

} // namespace

bool fitsType(const QVariant &value, VarType type)
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
    return !value.isValid();
}
