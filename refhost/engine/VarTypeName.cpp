#include "refhost/engine/VarTypeName.h"

QStringList varTypeNames()
{
    return {QStringLiteral("int"),  QStringLiteral("double"), QStringLiteral("string"),
            QStringLiteral("bool"), QStringLiteral("list"),   QStringLiteral("table")};
}

QString varTypeName(VarType type)
{
    return varTypeNames().value(static_cast<int>(type) - static_cast<int>(VarType::Int));
}

VarType varTypeFromName(const QString &name)
{
    const int index = varTypeNames().indexOf(name);
    return index < 0 ? VarType::None : static_cast<VarType>(index + static_cast<int>(VarType::Int));
}
