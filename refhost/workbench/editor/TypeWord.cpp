#include "refhost/workbench/editor/TypeWord.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/OperandText.h"
#include "refhost/engine/PropertySchema.h"
#include "refhost/engine/VarTypeName.h"
#include "refhost/engine/check/TaskFacts.h"
#include "refhost/workbench/editor/SpecialCharacter.h"

#include <QCoreApplication>
#include <QVariantList>

namespace {

constexpr int previewUnits = 60;

QStringList restrictionWords(const PropertySchema &schema)
{
    return schema.restriction.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

/// What stands behind the ":" of an editor word, such as "list".
QString editorSuffix(const PropertySchema &schema)
{
    return schema.editor.section(QLatin1Char(':'), 1).toLower();
}

} // namespace

QString typeWord(VarType type)
{
    switch (type) {
    case VarType::Int:
        return QCoreApplication::translate("TypeWord", "整数");
    case VarType::Double:
        return QCoreApplication::translate("TypeWord", "小数");
    case VarType::String:
        return QCoreApplication::translate("TypeWord", "字符串");
    case VarType::Bool:
        return QCoreApplication::translate("TypeWord", "真假值");
    case VarType::List:
        return QCoreApplication::translate("TypeWord", "列表");
    case VarType::Table:
        return QCoreApplication::translate("TypeWord", "表格");
    case VarType::None:
        break;
    }
    return QCoreApplication::translate("TypeWord", "未知类型");
}

QString typeWordsOf(const PropertySchema &schema)
{
    QStringList words;
    for (const QString &word : restrictionWords(schema)) {
        const VarType type = varTypeFromName(word);
        if (word == QLatin1String("scalar"))
            words.append(QCoreApplication::translate("TypeWord", "数值"));
        else
            words.append(type == VarType::None ? word : typeWord(type));
    }
    return words.join(QCoreApplication::translate("TypeWord", "、", "between types"));
}

VarType preferredType(const PropertySchema &schema)
{
    QStringList words = restrictionWords(schema);
    words.append(editorSuffix(schema));
    for (const QString &word : qAsConst(words)) {
        if (word == QLatin1String("scalar"))
            return VarType::Double;
        if (varTypeFromName(word) != VarType::None)
            return varTypeFromName(word);
    }
    return VarType::String;
}

QString valuePreview(const QVariant &value, VarType type)
{
    if (type == VarType::String)
        return QStringLiteral("\"%1\"").arg(visibleText(value.toString(), previewUnits));
    if (holdsElements(type)) {
        const int count = value.toList().size();
        return type == VarType::Table
                   ? QCoreApplication::translate("TypeWord", "%Ln 行", nullptr, count)
                   : QCoreApplication::translate("TypeWord", "%Ln 个元素", nullptr, count);
    }
    if (type == VarType::Bool)
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    return value.isValid() ? jsonText(variantToJson(value)) : QStringLiteral("0");
}
