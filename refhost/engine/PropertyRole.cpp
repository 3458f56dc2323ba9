#include "refhost/engine/PropertyRole.h"

#include "refhost/engine/PropertySchema.h"

#include "Operation.h"

PropertyRole roleOf(const PropertySchema &property)
{
    if (property.editor == QLatin1String("VARREF"))
        return PropertyRole::Text;
    if (property.editor.startsWith(QLatin1String("NUMVAR:")))
        return PropertyRole::Number;
    if (!property.editor.startsWith(QLatin1String("VARNAME:")))
        return PropertyRole::Other;
    return property.name == QLatin1String("resultVar") ? PropertyRole::Result : PropertyRole::Input;
}

bool isShown(const PropertySchema &property, const Operation &step)
{
    if (property.conditionName.isEmpty())
        return true;
    const QVariant choice = step.property(property.conditionName.toUtf8().constData());
    return !choice.isValid() || property.conditionValues.contains(choice.toInt());
}
