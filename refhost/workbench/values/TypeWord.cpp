#include "refhost/workbench/values/TypeWord.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TypeWord)
};

constexpr VarType allTypes[] = {VarType::Int,  VarType::Double, VarType::String,
                                VarType::Bool, VarType::List,   VarType::Table};

} // namespace

QString typeWord(VarType type)
{
    switch (type) {
    case VarType::Int:
        return Texts::tr("整数");
    case VarType::Double:
        return Texts::tr("小数");
    case VarType::String:
        return Texts::tr("字符串");
    case VarType::Bool:
        return Texts::tr("布尔值");
    case VarType::List:
        return Texts::tr("列表");
    case VarType::Table:
        return Texts::tr("表格");
    case VarType::None:
        break;
    }
    return Texts::tr("未知类型");
}

QStringList typeWords()
{
    QStringList words;
    for (const VarType type : allTypes)
        words.append(typeWord(type));
    return words;
}

VarType typeFromWord(const QString &word)
{
    for (const VarType type : allTypes) {
        if (typeWord(type) == word)
            return type;
    }
    return VarType::None;
}
