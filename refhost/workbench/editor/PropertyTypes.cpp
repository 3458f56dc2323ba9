#include "refhost/workbench/editor/PropertyTypes.h"

#include "refhost/engine/PropertySchema.h"
#include "refhost/engine/VarTypeName.h"
#include "refhost/workbench/values/TypeWord.h"

#include <QCoreApplication>

namespace {

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

QString typeWordsOf(const PropertySchema &schema)
{
    QStringList words;
    for (const QString &word : restrictionWords(schema)) {
        const VarType type = varTypeFromName(word);
        if (word == QLatin1String("scalar"))
            words.append(QCoreApplication::translate("PropertyTypes", "数值"));
        else
            words.append(type == VarType::None ? word : typeWord(type));
    }
    return words.join(QCoreApplication::translate("PropertyTypes", "、", "between types"));
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
