#include "operations/common/ResultStore.h"

#include "operations/common/ValueConversion.h"
#include "operations/common/Warning.h"

#include "VariableScope.h"

bool storeStringResult(VariableScope *scope, const QString &name, const QString &text)
{
    if (!scope || name.isEmpty())
        return false;
    if (scope->typeOf(name) != VarType::String) {
        warn("[TextOp] 变量", name, "未声明为字符串，已跳过");
        return false;
    }
    scope->set(name, text);
    return true;
}

bool storeNumberResult(VariableScope *scope, const QString &name, double value)
{
    if (!scope || name.isEmpty())
        return false;
    const VarType type = scope->typeOf(name);
    if (type == VarType::None) {
        warn("[TextOp] 变量", name, "未声明，已跳过写入");
        return false;
    }
    bool converts = false;
    const QVariant converted = convertToVarType(value, type, &converts);
    if (!converts) {
        warn("[TextOp] 变量", name, "数值类型不匹配，已跳过写入");
        return false;
    }
    scope->set(name, converted);
    return true;
}
