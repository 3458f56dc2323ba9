#include "refhost/engine/check/SearchRules.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/check/TaskFacts.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

using MaybeFinding = std::optional<Finding>;

bool isSearchedLiteral(const Setting &setting)
{
    return setting.role == PropertyRole::Text && !setting.operand.isReference &&
           isSearchText(setting);
}

/// The text that the literal comes to, since a number may be written in several ways.
QString searchedText(const Setting &setting, const TaskFacts &facts)
{
    return textOfValue(facts.valueAt(setting.operand, setting.step));
}

/// The texts in which the setting can be found, if they are certain.
std::optional<QStringList> searchedTexts(const Setting &setting, const TaskFacts &facts)
{
    const Setting *const source = facts.sibling(setting, setting.facts.searchedIn);
    return source ? facts.textsBehind(source->operand, setting.step) : std::nullopt;
}

bool anyContains(const QStringList &texts, const QString &text)
{
    return std::any_of(texts.begin(), texts.end(), [&](const QString &candidate) {
        return candidate.contains(text, Qt::CaseInsensitive);
    });
}

Advice adviceOnEmpty(Purpose purpose)
{
    switch (purpose) {
    case Purpose::Separator:
        return {EngineText::tr("no separator is given"),
                EngineText::tr("the text stays in one piece"),
                EngineText::tr("write the text that stands between the pieces")};
    case Purpose::Marker:
        return {EngineText::tr("no marker is given"),
                EngineText::tr("an empty marker is found at once, where the search begins"),
                EngineText::tr("write the text that stands at this place")};
    default:
        return {EngineText::tr("no text to search for is given"),
                EngineText::tr("an empty text is found at the start and between all characters"),
                EngineText::tr("write the text to search for")};
    }
}

MaybeFinding emptySearch(const Setting &setting, const TaskFacts &facts)
{
    Q_UNUSED(facts)
    if (!isSearchedLiteral(setting) || !setting.text().isEmpty())
        return std::nullopt;
    return findingAt(setting, Mistake::EmptySearch, Severity::Warning,
                     adviceOnEmpty(setting.facts.purpose));
}

/// Whether the text is written as a regular expression or a wildcard, and hardly as anything else.
///
/// "[note]", "a.b", "5*", "(a|b)" and "C:\data" are ordinary texts; a class such as "[0-9]" or
/// "[^,]+", an escape such as "\d" or "\.", a ".*" and a "*.txt" are not.
bool isPattern(const QString &text, Purpose purpose)
{
    static const QRegularExpression expression(
        QStringLiteral(R"(\\[dDwWsSbB](?![A-Za-z])|\\[.\[\](){}*+?^$|])"    // "\d", "\."
                       R"(|\[\^?(0-9|1-9|a-z|A-Z|a-f|A-F|\\[dws])[^\]]*\])" // "[0-9]"
                       R"(|\[[^\]]+\]([+*?]|\{\d+(,\d*)?\}))"               // "[^,]+", "[ab]{2}"
                       R"(|(?<!\.)\.[*+]|\((\?[:=!<]|\?i\)))"               // ".*", "(?:"
                       R"(|\\u4e00-\\u9fa5)"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression wildcard(
        QStringLiteral(R"(^[\w*?-]*[*?][\w*?-]*\.([A-Za-z]\w{0,4}|\*)$)"),
        QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression separators(
        QStringLiteral(R"(^\[[^\w\[\]]{2,}\]$|^[^\w\s|]\|[^\w\s|]$)"),
        QRegularExpression::UseUnicodePropertiesOption);
    return expression.match(text).hasMatch() || wildcard.match(text).hasMatch() ||
           (purpose == Purpose::Separator && separators.match(text).hasMatch());
}

MaybeFinding typedPattern(const Setting &setting, const TaskFacts &facts)
{
    const QString text = setting.text();
    if (!isSearchedLiteral(setting) || !isPattern(text, setting.facts.purpose))
        return std::nullopt;
    const auto sources = searchedTexts(setting, facts);
    if (sources && anyContains(*sources, text))
        return std::nullopt;
    return findingAt(setting, Mistake::TypedPattern, Severity::Warning,
                     {EngineText::tr("%1 is written as a pattern").arg(quoted(text)),
                      EngineText::tr("these characters themselves are searched for: operands have "
                                     "no patterns and no wildcards"),
                      EngineText::tr("write the text itself; if these characters are meant, leave "
                                     "them")});
}

/// The half-width form of a full-width character, any other character as it is.
QChar halfWidth(QChar character)
{
    switch (character.unicode()) {
    case 0x3000: // ideographic space
        return QLatin1Char(' ');
    case 0x3002: // ideographic full stop
        return QLatin1Char('.');
    case 0x2018: // quotation marks
    case 0x2019:
        return QLatin1Char('\'');
    case 0x201C:
    case 0x201D:
        return QLatin1Char('"');
    default:
        break;
    }
    const bool isFull = character.unicode() >= 0xFF01 && character.unicode() <= 0xFF5E;
    return isFull ? QChar(character.unicode() - 0xFEE0) : character;
}

/// The text in half-width characters, of the same size.
QString halfWidth(const QString &text)
{
    QString half = text;
    std::transform(half.begin(), half.end(), half.begin(),
                   [](QChar character) { return halfWidth(character); });
    return half;
}

/// The first part of a source that differs from `text` in the width of characters only, empty when
/// there is none or when the text itself is found.
QString otherWidth(const QString &text, const QStringList &sources)
{
    if (text.isEmpty() || anyContains(sources, text))
        return {};
    const QString half = halfWidth(text);
    for (const QString &source : sources) {
        const int place = halfWidth(source).indexOf(half);
        if (place >= 0)
            return source.mid(place, text.size());
    }
    return {};
}

/// Whether the step, or another one, deals with the other form too, as steps do that make one form
/// of both.
bool makesOneForm(const Setting &setting, const QString &other, const TaskFacts &facts)
{
    const QVector<Setting> &step = facts.steps().at(setting.step);
    const bool isBeside = std::any_of(step.begin(), step.end(), [&](const Setting &candidate) {
        return candidate.role == PropertyRole::Text && candidate.text() == other;
    });
    return isBeside || (setting.facts.purpose == Purpose::SearchText && facts.isSearchedFor(other));
}

MaybeFinding fullWidthText(const Setting &setting, const TaskFacts &facts)
{
    if (!isSearchedLiteral(setting))
        return std::nullopt;
    const auto sources = searchedTexts(setting, facts);
    const QString text = searchedText(setting, facts);
    const QString other = sources ? otherWidth(text, *sources) : QString();
    if (other.isEmpty() || makesOneForm(setting, other, facts))
        return std::nullopt;
    return findingAt(
        setting, Mistake::FullWidth, Severity::Warning,
        {EngineText::tr("%1 is not in the text, but %2 is").arg(quoted(text), quoted(other)),
         EngineText::tr("nothing is found: full-width and half-width characters "
                        "differ"),
         EngineText::tr("write %1").arg(quoted(other))});
}

/// A full-width "$" and the name of a variable behind it.
MaybeFinding fullWidthDollar(const Setting &setting, const TaskFacts &facts)
{
    const QString text = setting.text();
    const int dollar = text.indexOf(QChar(0xFF04));
    if (setting.role != PropertyRole::Text || setting.operand.isReference || dollar < 0)
        return std::nullopt;
    const int size = facts.names().leadingSize(QStringView(text).mid(dollar + 1));
    const QString name = text.mid(dollar + 1, size);
    if (name.isEmpty())
        return std::nullopt;
    const QString typed = QChar(0xFF04) + name;
    return findingAt(setting, Mistake::FullWidth,
                     typed == text ? Severity::Warning : Severity::Note,
                     {EngineText::tr("%1 has a full-width \"$\"").arg(quoted(typed)),
                      EngineText::tr("it is no reference: the text stays as it is"),
                      EngineText::tr("write %1").arg(quoted(QLatin1Char('$') + name)), name});
}

/// The settings of a step that search, all of them for a text that is certainly there.
bool isSurelyFound(int step, const TaskFacts &facts)
{
    const QVector<Setting> &settings = facts.steps().at(step);
    return std::any_of(settings.begin(), settings.end(), [&](const Setting &setting) {
        const Setting *const source = facts.sibling(setting, setting.facts.searchedIn);
        if (!source || !isSearchText(setting))
            return false;
        const QVariant haystack = facts.valueAt(source->operand, step);
        const QVariant needle = facts.valueAt(setting.operand, step);
        return haystack.isValid() && needle.isValid() &&
               textOfValue(haystack).contains(textOfValue(needle), Qt::CaseInsensitive);
    });
}

MaybeFinding maybeNotFound(const Setting &setting, const TaskFacts &facts)
{
    if (setting.facts.purpose != Purpose::Start || !setting.operand.isReference ||
        !setting.operand.path.isEmpty())
        return std::nullopt;
    const Setting *const writer = facts.writerBefore(setting.operand.name, setting.step);
    if (!writer || !writer->facts.whenNotFound || isSurelyFound(writer->step, facts))
        return std::nullopt;
    const QString number = textOfValue(*writer->facts.whenNotFound);
    return findingAt(
        setting, Mistake::MaybeNotFound, Severity::Note,
        {EngineText::tr("%1 is %2 if %3 does not find its text")
             .arg(quoted(setting.text()), number, stepText(writer->step)),
         EngineText::tr("the step starts at %1 then, as if that were a position").arg(number),
         EngineText::tr("use it for texts that always have what is searched for, or "
                        "cut at a marker")});
}

} // namespace

QList<SettingRule> searchRules()
{
    return {emptySearch, typedPattern, fullWidthText, fullWidthDollar, maybeNotFound};
}
