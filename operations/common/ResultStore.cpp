#include "operations/common/ResultStore.h"

#include "operations/common/Warning.h"

#include "VariableScope.h"

bool storeStringResult(VariableScope *scope, const QString &name, const QString &text)
{
    if (!scope || name.isEmpty())
        return false;
    if (scope->typeOf(name) != VarType::String) {
        warning() << "[TextOp] 变量" << name << "未声明为字符串，已跳过";
        return false;
    }
    scope->set(name, text);
    return true;
}
