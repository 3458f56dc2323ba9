#include "refhost/validator/trials/SampleScope.h"

#include "refhost/validator/trials/EqualValue.h"

namespace {

VariableScope makeVariables()
{
    VariableScope scope;
    scope.declare(sampleName(VarType::Int), VarType::Int, 3);
    scope.declare(sampleName(VarType::Double), VarType::Double, 2.5);
    scope.declare(sampleName(VarType::String), VarType::String,
                  QStringLiteral(" One, two, 3: four-five. "));
    scope.declare(sampleName(VarType::Bool), VarType::Bool, true);
    const QVariantList row{1, QStringLiteral("b"), 2.5};
    scope.declare(sampleName(VarType::List), VarType::List,
                  QVariantList{QStringLiteral("a"), 1, 2.5, true, QVariant(row)});
    scope.declare(sampleName(VarType::Table), VarType::Table,
                  QVariantList{QVariant(row), QVariant(QVariantList{QStringLiteral("c")})});
    scope.declare(QStringLiteral("blank"), VarType::String, QString());
    scope.declare(QStringLiteral("digits"), VarType::String, QStringLiteral("12"));
    return scope;
}

} // namespace

QString resultName()
{
    return QStringLiteral("result");
}

VariableScope sampleScope(VarType resultType)
{
    static const VariableScope variables = makeVariables();
    VariableScope scope = variables;
    scope.declare(resultName(), resultType);
    return scope;
}

QString sampleName(VarType type)
{
    switch (type) {
    case VarType::Int:
        return QStringLiteral("count");
    case VarType::Double:
        return QStringLiteral("number");
    case VarType::String:
        return QStringLiteral("line");
    case VarType::Bool:
        return QStringLiteral("flag");
    case VarType::List:
        return QStringLiteral("list");
    case VarType::Table:
        return QStringLiteral("table");
    case VarType::None:
        break;
    }
    return QStringLiteral("undeclared");
}

bool areSame(const VariableScope &left, const VariableScope &right)
{
    return differingNames(left, right).isEmpty();
}

QStringList differingNames(const VariableScope &left, const VariableScope &right)
{
    QStringList names = left.names() + right.names();
    names.removeDuplicates();
    QStringList differing;
    for (const QString &name : qAsConst(names)) {
        if (left.typeOf(name) != right.typeOf(name) ||
            !isEqualValue(left.get(name), right.get(name)))
            differing.append(name);
    }
    return differing;
}
