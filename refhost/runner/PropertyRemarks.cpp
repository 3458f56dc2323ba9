#include "refhost/runner/PropertyRemarks.h"

#include "refhost/engine/EngineText.h"
#include "refhost/runner/RunnerText.h"

#include <QStringList>

QString editorOf(const PropertySchema &property)
{
    return property.editor.isEmpty() ? property.typeName : property.editor;
}

QString remarksOn(const PropertySchema &property)
{
    QStringList remarks;
    if (!property.restrictionKey.isEmpty())
        remarks.append(property.restrictionKey + QLatin1Char(' ') + property.restriction);
    if (!property.shownChoices.isEmpty()) {
        QStringList choices;
        for (int i = 0; i < property.shownChoices.size(); ++i)
            choices.append(QStringLiteral("%1 %2").arg(i).arg(property.shownChoices.at(i)));
        remarks.append(choices.join(QLatin1String(" | ")));
    }
    if (!property.conditionName.isEmpty()) {
        QStringList values;
        for (const int value : property.conditionValues)
            values.append(QString::number(value));
        remarks.append(
            RunnerText::tr("shown when %1 is %2").arg(property.conditionName, choiceText(values)));
    }
    return remarks.join(QLatin1String("; "));
}
