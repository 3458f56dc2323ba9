#include "refhost/engine/EngineText.h"

#include "refhost/engine/PropertySchema.h"
#include "refhost/engine/VarTypeName.h"

namespace {

/// The texts, with what `pattern` has between its two markers between them.
QString joined(const QStringList &texts, const QString &pattern)
{
    const int first = pattern.indexOf(QLatin1String("%1")) + 2;
    return texts.join(pattern.mid(first, pattern.indexOf(QLatin1String("%2")) - first));
}

QString propertyPattern()
{
    //: {name} stands in task files, {label} in the editor; use one of them.
    return EngineText::tr("{name}");
}

QString typeWordText(const QString &word)
{
    if (word == QLatin1String("scalar"))
        return EngineText::tr("scalar");
    const QString text = typeText(varTypeFromName(word));
    return text.isEmpty() ? word : text;
}

} // namespace

QString stepText(int index)
{
    //: {index} counts from 0 as task files do, {number} from 1; use one of them.
    QString text = EngineText::tr("steps[{index}]");
    text.replace(QLatin1String("{index}"), QString::number(index));
    return text.replace(QLatin1String("{number}"), QString::number(index + 1));
}

QString propertyText(const PropertySchema &property)
{
    const QString label = property.shownLabel.isEmpty() ? property.name : property.shownLabel;
    QString text = propertyPattern();
    if (text.contains(QLatin1String("{label}")))
        return text.replace(QLatin1String("{label}"), label);
    return text.replace(QLatin1String("{name}"), property.name);
}

QStringList choicesText(const PropertySchema &property)
{
    return propertyPattern().contains(QLatin1String("{label}")) ? property.shownChoices
                                                                : property.choices;
}

QString typeText(VarType type)
{
    switch (type) {
    case VarType::Int:
        return EngineText::tr("int");
    case VarType::Double:
        return EngineText::tr("double");
    case VarType::String:
        return EngineText::tr("string");
    case VarType::Bool:
        return EngineText::tr("bool");
    case VarType::List:
        return EngineText::tr("list");
    case VarType::Table:
        return EngineText::tr("table");
    case VarType::None:
        break;
    }
    return {};
}

QStringList typeTexts(const QString &words)
{
    QStringList texts = words.split(QLatin1Char(','));
    for (QString &text : texts)
        text = typeWordText(text);
    return texts;
}

QString wordsText(const QStringList &words)
{
    return joined(words, EngineText::tr("%1,%2"));
}

QString listText(const QStringList &texts)
{
    return joined(texts, EngineText::tr("%1, %2"));
}

QString choiceText(const QStringList &texts)
{
    return joined(texts, EngineText::tr("%1 or %2"));
}
