#include "refhost/engine/check/LiteralRules.h"

#include "refhost/engine/EngineText.h"
#include "refhost/engine/NameIndex.h"
#include "refhost/engine/check/TaskFacts.h"

#include <QRegularExpression>

namespace {

using MaybeFinding = std::optional<Finding>;

constexpr QChar fullWidthDollar(0xFF04);

bool isLiteral(const Setting &setting, PropertyRole role)
{
    return setting.role == role && !setting.operand.isReference;
}

MaybeFinding emptyNumber(const Setting &setting, const TaskFacts &facts)
{
    Q_UNUSED(facts)
    if (!isLiteral(setting, PropertyRole::Number) || !setting.text().isEmpty() ||
        setting.facts.whenEmpty)
        return std::nullopt;
    return findingAt(setting, Mistake::EmptyNumber, Severity::Warning,
                     {EngineText::tr("no number is given"),
                      EngineText::tr("the step takes what it takes without one, or does nothing"),
                      EngineText::tr("write the number, \"0\" where none is needed")});
}

MaybeFinding notANumber(const Setting &setting, const TaskFacts &facts)
{
    const QString text = setting.text();
    if (!isLiteral(setting, PropertyRole::Number) || text.isEmpty() || literalNumber(text))
        return std::nullopt;
    const QString name = text.mid(text.startsWith(fullWidthDollar) ? 1 : 0);
    const QString remedy =
        facts.variable(name)
            ? EngineText::tr("write %1 for the variable").arg(quoted(QLatin1Char('$') + name))
            : EngineText::tr("write digits, with \".\" before decimals and no group separators");
    return findingAt(setting, Mistake::NotANumber, Severity::Error,
                     {EngineText::tr("%1 is no number").arg(quoted(text)),
                      EngineText::tr("the step goes on without a number, or does nothing"), remedy,
                      facts.variable(name) ? name : QString()});
}

MaybeFinding numberAsText(const Setting &setting, const TaskFacts &facts)
{
    Q_UNUSED(facts)
    // Where a number is welcome the way it is written does not matter.
    if (!isLiteral(setting, PropertyRole::Text) || asksForNumbers(setting.schema))
        return std::nullopt;
    const auto number = literalNumber(setting.text());
    const QString became = number ? textOfValue(*number) : setting.text();
    if (became == setting.text())
        return std::nullopt;
    return findingAt(setting, Mistake::NumberAsText, Severity::Warning,
                     {EngineText::tr("%1 travels as a number").arg(quoted(setting.text())),
                      EngineText::tr("the operand becomes the text %1").arg(quoted(became)),
                      EngineText::tr("keep %1 in a string variable and refer to that")
                          .arg(quoted(setting.text()))});
}

/// Whether the text is a file name in which backslashes are at home.
///
/// With the name of a drive or a server in front it is. Otherwise it has to be words of at least
/// two characters with single backslashes before them, so not "a\nb" or "end.\n", and something has
/// to speak for a file: ".\" or "%TEMP%\" in front, a suffix at the end, or a backslash that begins
/// no escape, as in "new\old" or at the end. "name\tage\tcity" has nothing of that and is a line
/// with tabulators typed into it; a folder "data\new" alone is taken for the same.
bool isPath(const QString &text)
{
    static const QRegularExpression rooted(QStringLiteral(R"(^([A-Za-z]:\\|\\\\[^\\]+\\))"));
    static const QRegularExpression words(
        QStringLiteral(R"(^[\w.~%$()-]*(\\[\w.~%$()-]{2,})+\\?$)"),
        QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression sign(
        QStringLiteral(R"(^\.{1,2}\\|^%\w+%\\|\.[A-Za-z]\w{0,4}$|\\(?![ntr\\"]|u[0-9A-Fa-f]{4}))"));
    if (rooted.match(text).hasMatch())
        return true;
    return words.match(text).hasMatch() && sign.match(text).hasMatch();
}

MaybeFinding typedEscape(const Setting &setting, const TaskFacts &facts)
{
    Q_UNUSED(facts)
    static const QRegularExpression escape(QStringLiteral(R"(\\([ntr\\"]|u[0-9A-Fa-f]{4}))"));
    const QString text = setting.text();
    if (!isLiteral(setting, PropertyRole::Text) || isPath(text))
        return std::nullopt;
    const QRegularExpressionMatch match = escape.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString typed = match.captured();
    return findingAt(
        setting, Mistake::TypedEscape, Severity::Warning,
        {EngineText::tr("%1 is typed into the text").arg(typed),
         EngineText::tr("the backslash stays in it: operands have no escape sequences"),
         EngineText::tr("type the character itself, in a task file \"%1\"; if the backslash is "
                        "meant, leave it")
             .arg(typed)});
}

MaybeFinding loneDollar(const Setting &setting, const TaskFacts &facts)
{
    Q_UNUSED(facts)
    if (!isLiteral(setting, PropertyRole::Text) || setting.text() != QLatin1String("$"))
        return std::nullopt;
    return findingAt(setting, Mistake::LoneDollar, Severity::Note,
                     {EngineText::tr("\"$\" names no variable"),
                      EngineText::tr("the operand is the text \"$\""),
                      EngineText::tr("write a name behind it; if the sign is meant, keep it in a "
                                     "variable")});
}

/// A "$name" or "${name}" within a text.
struct InnerReference
{
    QString text;
    QString name;
};

/// The first one in the text that has the name of a variable, empty without one.
InnerReference referenceWithin(const QString &text, const NameIndex &names)
{
    for (int dollar = text.indexOf(QLatin1Char('$')); dollar >= 0;
         dollar = text.indexOf(QLatin1Char('$'), dollar + 1)) {
        const bool braced = text.midRef(dollar + 1).startsWith(QLatin1Char('{'));
        const int start = dollar + (braced ? 2 : 1);
        const int size = names.leadingSize(QStringView(text).mid(start));
        const bool closed = !braced || text.midRef(start + size).startsWith(QLatin1Char('}'));
        const int end = start + size + (braced ? 1 : 0);
        if (size > 0 && closed)
            return {text.mid(dollar, end - dollar), text.mid(start, size)};
    }
    return {};
}

MaybeFinding dollarInText(const Setting &setting, const TaskFacts &facts)
{
    if (!isLiteral(setting, PropertyRole::Text))
        return std::nullopt;
    const InnerReference inner = referenceWithin(setting.text(), facts.names());
    if (inner.name.isEmpty())
        return std::nullopt;
    return findingAt(setting, Mistake::DollarInText, Severity::Note,
                     {EngineText::tr("%1 stands within a text").arg(quoted(inner.text)),
                      EngineText::tr("it stays as it is: an operand is a reference as a whole or "
                                     "not at all"),
                      EngineText::tr("refer to the variable in an operand of its own, and put the "
                                     "texts together step by step"),
                      inner.name});
}

MaybeFinding missingDollar(const Setting &setting, const TaskFacts &facts)
{
    const QString text = setting.text();
    if (!isLiteral(setting, PropertyRole::Text) || !facts.variable(text) ||
        !facts.readers(text).isEmpty())
        return std::nullopt;
    return findingAt(
        setting, Mistake::MissingDollar, Severity::Note,
        {EngineText::tr("%1 is the name of a variable that nobody reads").arg(quoted(text)),
         EngineText::tr("the operand is that name, not the value of the variable"),
         EngineText::tr("write %1").arg(quoted(QLatin1Char('$') + text)), text});
}

} // namespace

QList<SettingRule> literalRules()
{
    return {emptyNumber, notANumber,   numberAsText, typedEscape,
            loneDollar,  dollarInText, missingDollar};
}
