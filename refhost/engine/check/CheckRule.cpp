#include "refhost/engine/check/CheckRule.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/JsonValue.h"
#include "refhost/engine/NearName.h"
#include "refhost/engine/check/TaskFacts.h"

Finding findingAt(const Setting &setting, Mistake mistake, Severity severity, const Advice &advice)
{
    Finding finding;
    finding.mistake = mistake;
    finding.severity = severity;
    finding.step = setting.step;
    finding.typeId = setting.typeId;
    finding.property = setting.schema.name;
    finding.text = setting.text();
    finding.message = advice.message;
    finding.consequence = advice.consequence;
    finding.remedy = advice.remedy;
    finding.meant = advice.meant;
    return finding;
}

QString nothingThere(const Setting &setting)
{
    if (setting.role == PropertyRole::Text)
        return EngineText::tr("the operand counts as empty text");
    return EngineText::tr(
        "the operand is no number: the step goes on without one, or does nothing");
}

QString quoted(const QString &text)
{
    constexpr int limit = 60;
    if (text.size() <= limit)
        return jsonText(text);
    const bool cutsPair = text.at(limit - 1).isHighSurrogate();
    return jsonText(text.left(cutsPair ? limit - 1 : limit) + QStringLiteral("…"));
}

QString anyOf(const QStringList &texts)
{
    QStringList words;
    for (const QString &text : texts)
        words.append(quoted(text));
    QString last = words.isEmpty() ? QString() : words.takeLast();
    if (words.isEmpty())
        return last;
    return EngineText::tr("%1 or %2", "texts in quotes").arg(listText(words), last);
}

QString remedyForName(const QString &name, const QString &sign, const NearName &near)
{
    const QString meant = quoted(sign + near.name);
    switch (near.difference) {
    case NearName::Difference::Space:
        return EngineText::tr("write %1: white space is part of a name").arg(meant);
    case NearName::Difference::Braces:
        return EngineText::tr("write %1, without braces").arg(meant);
    case NearName::Difference::Case:
        return EngineText::tr("write %1: capital and small letters differ").arg(meant);
    case NearName::Difference::Letters:
        return EngineText::tr("declare %1, or write %2").arg(quoted(name), meant);
    case NearName::Difference::Tail:
        return EngineText::tr(
                   "write %1 alone, and put what follows it behind it in a step of its own")
            .arg(meant);
    case NearName::Difference::Far:
        break;
    }
    if (sign.isEmpty())
        return EngineText::tr("declare %1").arg(quoted(name));
    return EngineText::tr("declare %1; a text that begins with \"$\" has to come from a variable")
        .arg(quoted(name));
}
