#include "refhost/validator/trials/ShownValue.h"

#include "refhost/engine/JsonValue.h"

QString shownValue(const QVariant &value)
{
    constexpr int mostUnits = 60;
    if (!value.isValid())
        return QStringLiteral("nothing");
    // A long text is not escaped in full, only to be cut.
    const QString text = value.type() == QVariant::String
                             ? jsonText(value.toString().left(mostUnits + 1))
                             : jsonText(variantToJson(value));
    return text.size() <= mostUnits ? text : text.left(mostUnits) + QStringLiteral("...");
}

QString shownText(const QString &text)
{
    return shownValue(text);
}
