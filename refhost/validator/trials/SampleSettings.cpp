#include "refhost/validator/trials/SampleSettings.h"

#include "refhost/engine/VarTypeName.h"
#include "refhost/validator/trials/SampleScope.h"
#include "refhost/validator/trials/ShownValue.h"

#include "Operation.h"

namespace {

const QList<VarType> allTypes{VarType::None, VarType::Int,  VarType::Double, VarType::String,
                              VarType::Bool, VarType::List, VarType::Table};

QString reference(VarType type, const QString &path = {})
{
    return QLatin1Char('$') + sampleName(type) + path;
}

/// The type of variable the property asks for by name.
VarType namedType(const PropertySchema &property)
{
    const QString word = property.restriction.section(QLatin1Char(','), 0, 0);
    const VarType type = varTypeFromName(word);
    return type == VarType::None ? VarType::Double : type;
}

QVariant ordinaryValue(const PropertySchema &property)
{
    if (property.name == QLatin1String("resultVar"))
        return resultName();
    if (isVariableName(property))
        return sampleName(namedType(property));
    if (isNumberOperand(property))
        return QStringLiteral("3");
    if (isTextOperand(property))
        return reference(VarType::String);
    return property.defaultValue;
}

QVariantList references()
{
    QVariantList values;
    for (const VarType type : allTypes)
        values.append(reference(type));
    for (const char *text : {"$blank", "$digits", "$list.Count", "$table.columns", "$line.Rows",
                             "$list.nothing", "$", "$.x"}) {
        values.append(QString::fromLatin1(text));
    }
    return values + QVariantList{QLatin1Char('$') + resultName()};
}

QVariantList texts()
{
    constexpr int longText = 1000;
    QVariantList values;
    for (const char *text : {"", " ", "a", "007", "1,000", "1e3", "%1 %2", "\\n", "文本", "😀"})
        values.append(QString::fromUtf8(text));
    return values + QVariantList{QString(longText, QLatin1Char('x'))};
}

QVariantList numbers()
{
    QVariantList values;
    for (const char *text : {"", "0", "-1", "1", "2.9", "1e3", "nan", "inf", "2147483648", "x"})
        values.append(QString::fromLatin1(text));
    return values;
}

QVariantList names()
{
    QVariantList values{QString(), QStringLiteral("$list"), QStringLiteral("list.Items"),
                        QStringLiteral("blank"), resultName()};
    for (const VarType type : allTypes)
        values.append(sampleName(type));
    return values;
}

QVariantList choices(const PropertySchema &property)
{
    constexpr int mostChoices = 30;
    const int count = qMin(property.choices.size(), mostChoices);
    QVariantList values{-1, property.choices.size(), 99};
    for (int i = 0; i < count; ++i)
        values.append(i);
    return values;
}

QVariantList valuesToTry(const PropertySchema &property)
{
    if (property.name == QLatin1String("resultVar"))
        return {};
    if (isVariableName(property))
        return names();
    if (isNumberOperand(property))
        return numbers() + references();
    if (isTextOperand(property))
        return texts() + references();
    switch (property.defaultValue.userType()) {
    case QMetaType::Int:
        return choices(property);
    case QMetaType::Bool:
        return {false, true};
    case QMetaType::Double:
        return {0.0, -1.0, 0.5};
    default:
        return {};
    }
}

} // namespace

void TrialSetting::applyTo(Operation &step) const
{
    if (!property.isEmpty())
        step.setProperty(property.toLatin1().constData(), value);
}

QString TrialSetting::toString() const
{
    if (property.isEmpty())
        return QStringLiteral("ordinary settings");
    return QStringLiteral("%1 = %2").arg(property, shownValue(value));
}

bool isTextOperand(const PropertySchema &property)
{
    return property.defaultValue.userType() == QMetaType::QString && !isNumberOperand(property) &&
           !isVariableName(property);
}

bool isNumberOperand(const PropertySchema &property)
{
    return property.editor.startsWith(QLatin1String("NUMVAR"));
}

bool isVariableName(const PropertySchema &property)
{
    return property.editor.startsWith(QLatin1String("VARNAME"));
}

void setOrdinary(Operation &step, const OperationSchema &schema)
{
    for (const PropertySchema &property : schema.properties())
        TrialSetting{property.name, ordinaryValue(property)}.applyTo(step);
}

QList<TrialSetting> settingsToTry(const OperationSchema &schema)
{
    QList<TrialSetting> settings{{}};
    for (const PropertySchema &property : schema.properties()) {
        const QVariantList values = valuesToTry(property);
        for (const QVariant &value : values)
            settings.append({property.name, value});
    }
    return settings;
}
