#include "tests/mutation/MutationFinder.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

using Pairs = QHash<QString, QString>;

/// The words of `text` by twos, each of a pair leading to the other.
Pairs bothWays(const char *text)
{
    Pairs pairs;
    const QStringList words = QString::fromLatin1(text).split(QLatin1Char(' '));
    for (int i = 0; i + 1 < words.size(); i += 2) {
        pairs.insert(words.at(i), words.at(i + 1));
        pairs.insert(words.at(i + 1), words.at(i));
    }
    return pairs;
}

const Pairs &comparisons()
{
    static const Pairs pairs = bothWays("< <= > >= == !=");
    return pairs;
}

const Pairs &operators()
{
    static const Pairs pairs = bothWays("+ - * /");
    return pairs;
}

const Pairs &assignments()
{
    static const Pairs pairs = bothWays("+= -= *= /= ++ --");
    return pairs;
}

const Pairs &functions()
{
    static const Pairs pairs = bothWays(
        "left right startsWith endsWith toUpper toLower first last front back begin end "
        "cbegin cend rbegin rend min max find_if find_if_not all_of any_of append prepend "
        "push_back push_front indexOf lastIndexOf chop truncate floor ceil lower_bound upper_bound");
    return pairs;
}

const Pairs &enumerators()
{
    static const Pairs pairs =
        bothWays("CaseSensitive CaseInsensitive KeepEmptyParts SkipEmptyParts");
    return pairs;
}

bool isPredicate(const QString &name)
{
    static const QSet<QString> names{QStringLiteral("isEmpty"), QStringLiteral("isNull"),
                                     QStringLiteral("isValid"), QStringLiteral("contains"),
                                     QStringLiteral("empty")};
    return names.contains(name);
}

/// The number with a whole part that is larger by one; empty when it has none.
QString incremented(const QString &number)
{
    static const QRegularExpression form(QStringLiteral("^(0[xX])?([0-9a-fA-F]+)(.*)$"));
    static const QRegularExpression decimal(QStringLiteral("^()([0-9]+)(.*)$"));
    const auto hexadecimal = number.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    const auto match = (hexadecimal ? form : decimal).match(number);
    if (!match.hasMatch())
        return {};
    const int base = hexadecimal ? 16 : 10;
    const qulonglong whole = match.captured(2).toULongLong(nullptr, base);
    return match.captured(1) + QString::number(whole + 1, base) + match.captured(3);
}

/// A text or character literal with another first character; an empty text gets one.
QString otherCharacter(const QString &literal)
{
    static const QRegularExpression form(QStringLiteral(
        "^((?:u8|u|U|L)?[\"'])(\\\\(?:x[0-9a-fA-F]+|u[0-9a-fA-F]{4}|U[0-9a-fA-F]{8}|[0-7]{1,3}|.)"
        "|[\\x{10000}-\\x{10FFFF}]|[^\"'\\\\])?(.*)$"));
    const auto match = form.match(literal);
    if (!match.hasMatch())
        return {};
    const QString other =
        match.captured(2) == QLatin1String("x") ? QStringLiteral("y") : QStringLiteral("x");
    return match.captured(1) + other + match.captured(3);
}

/// Whether a statement that begins with this word is none that can be taken out.
bool isKeyword(const QString &word)
{
    static const QSet<QString> words{
        QStringLiteral("return"),   QStringLiteral("if"),     QStringLiteral("for"),
        QStringLiteral("while"),    QStringLiteral("switch"), QStringLiteral("case"),
        QStringLiteral("default"),  QStringLiteral("break"),  QStringLiteral("else"),
        QStringLiteral("continue"), QStringLiteral("using"),  QStringLiteral("do"),
        QStringLiteral("goto"),     QStringLiteral("throw"),  QStringLiteral("const"),
        QStringLiteral("static"),   QStringLiteral("auto"),   QStringLiteral("delete")};
    return words.contains(word);
}

} // namespace

MutationFinder::MutationFinder(const QString &file, const QString &source)
    : m_file(file)
    , m_tokens(source)
{
    for (int i = 0; i < m_tokens.size(); ++i) {
        if (m_tokens.isAnnotation(i))
            continue;
        findComparison(i);
        findConstant(i);
        findSign(i);
        findCondition(i);
        findBoolean(i);
        findBranches(i);
        findOtherFunction(i);
        findPredicate(i);
        findArguments(i);
        findStatement(i);
        findReturn(i);
        findCharacter(i);
    }
    std::stable_sort(m_mutations.begin(), m_mutations.end(),
                     [](const Mutation &a, const Mutation &b) { return a.offset < b.offset; });
}

void MutationFinder::findComparison(int index)
{
    const auto other = comparisons().constFind(m_tokens.text(index));
    if (other != comparisons().constEnd() && m_tokens.isSpaced(index))
        replaceToken("comparison", index, *other);
}

void MutationFinder::findConstant(int index)
{
    if (m_tokens.is(index, "true"))
        replaceToken("constant", index, QStringLiteral("false"));
    if (m_tokens.is(index, "false"))
        replaceToken("constant", index, QStringLiteral("true"));
    if (m_tokens.at(index).kind != Token::Kind::Number)
        return;
    // The mark of a function without a body.
    const bool isPure = m_tokens.is(index - 1, "=") &&
                        (m_tokens.is(index - 2, ")") || m_tokens.is(index - 2, "const"));
    const QString other = incremented(m_tokens.text(index));
    if (!isPure && !other.isEmpty())
        replaceToken("constant", index, other);
}

void MutationFinder::findSign(int index)
{
    const QString text = m_tokens.text(index);
    if (m_tokens.at(index).kind != Token::Kind::Punctuator || m_tokens.is(index - 1, "operator"))
        return;
    const bool hasTwoOperands = m_tokens.endsOperand(index - 1);
    if (assignments().contains(text))
        replaceToken("sign", index, assignments().value(text));
    else if (text == QLatin1String("-") && !hasTwoOperands)
        replaceToken("sign", index, QString());
    else if (operators().contains(text) && hasTwoOperands && m_tokens.isSpaced(index) &&
             !m_tokens.is(index + 1, "{"))
        replaceToken("sign", index, operators().value(text));
}

void MutationFinder::findCondition(int index)
{
    const int first = m_tokens.conditionStart(index);
    if (first == index)
        return;
    const int last = m_tokens.partner(index);
    // Turning an equality around says the same as negating it.
    const int sign = m_tokens.next(first, {"==", "!=", "&&", "||", "?"});
    const bool isEquality = m_tokens.is(sign, "==") || m_tokens.is(sign, "!=");
    if (isEquality && m_tokens.next(sign + 1, {"&&", "||", "?"}) == last)
        return;
    const QString condition = m_tokens.text(first, last);
    replaceTokens("condition", first, last, QStringLiteral("!(%1)").arg(condition));
}

void MutationFinder::findBoolean(int index)
{
    if (m_tokens.is(index, "&&") && m_tokens.isSpaced(index))
        replaceToken("condition", index, QStringLiteral("||"));
    if (m_tokens.is(index, "||") && m_tokens.isSpaced(index))
        replaceToken("condition", index, QStringLiteral("&&"));
    const int end = m_tokens.chainEnd(index + 1);
    if (m_tokens.is(index, "!") && end > index + 1 && !isWholeCondition(index, end))
        replaceToken("condition", index, QString());
}

void MutationFinder::findBranches(int index)
{
    if (!m_tokens.is(index, "?"))
        return;
    const int colon = m_tokens.colonOf(index);
    if (!m_tokens.is(colon, ":"))
        return;
    int end = m_tokens.next(colon + 1, {":", ",", ";", "?"});
    while (m_tokens.is(end, "?"))
        end = m_tokens.next(m_tokens.colonOf(end) + 1, {":", ",", ";", "?"});
    const QString whenTrue = m_tokens.text(index + 1, colon);
    const QString whenFalse = m_tokens.text(colon + 1, end);
    replaceTokens("condition", index + 1, end, whenFalse + QStringLiteral(" : ") + whenTrue);
}

void MutationFinder::findOtherFunction(int index)
{
    const QString name = m_tokens.text(index);
    if (!m_tokens.isInFunction(index))
        return;
    if (enumerators().contains(name))
        replaceToken("called function", index, enumerators().value(name));
    if (functions().contains(name) && m_tokens.is(index + 1, "("))
        replaceToken("called function", index, functions().value(name));
}

void MutationFinder::findPredicate(int index)
{
    if (!isPredicate(m_tokens.text(index)) || !m_tokens.is(index + 1, "(") ||
        !m_tokens.isInFunction(index))
        return;
    const int start = m_tokens.chainStart(index + 1);
    const int end = m_tokens.partner(index + 1) + 1;
    // Changed elsewhere to say the same: a "!" in front is dropped, branches behind are swapped.
    if (m_tokens.is(start - 1, "!") || m_tokens.is(end, "?") || isWholeCondition(start, end))
        return;
    const QString call = m_tokens.text(start, end);
    replaceTokens("called function", start, end, QLatin1Char('!') + call);
}

void MutationFinder::findArguments(int index)
{
    const int open = index + 1;
    const int close = m_tokens.partner(open);
    if (!m_tokens.isInFunction(index) || !m_tokens.is(open, "(") || close < open)
        return;
    const int comma = m_tokens.next(open + 1, {","});
    if (m_tokens.is(index, "trimmed") && m_tokens.is(index - 1, "."))
        replaceTokens("called function", index - 1, close + 1, QString());
    if (m_tokens.is(index, "mid") && m_tokens.is(comma, ","))
        replaceTokens("called function", comma, close, QString());
    if (m_tokens.is(index, "clamp") && m_tokens.is(comma, ","))
        replaceTokens("called function", m_tokens.chainStart(open), close + 1,
                      m_tokens.text(open + 1, comma));
}

void MutationFinder::findStatement(int index)
{
    if (!m_tokens.isInFunction(index) || !m_tokens.startsStatement(index) ||
        isKeyword(m_tokens.text(index)) || m_tokens.is(index, "("))
        return;
    const int start = m_tokens.is(index, "*") ? index + 1 : index;
    const int end = m_tokens.chainEnd(start);
    const bool isCall = m_tokens.is(end, ";") && m_tokens.is(end - 1, ")");
    const bool isAssignment = m_tokens.is(end, "=") || m_tokens.is(end, "+=") ||
                              m_tokens.is(end, "-=") || m_tokens.is(end, "<<");
    const int semicolon = m_tokens.next(end, {";"});
    if (end > start && (isCall || isAssignment) && m_tokens.is(semicolon, ";"))
        replaceTokens("statement", index, semicolon, QString());
}

void MutationFinder::findReturn(int index)
{
    if (!m_tokens.is(index, "return"))
        return;
    const int first = index + 1;
    const int last = m_tokens.next(first, {";"});
    if (first == last)
        return replaceToken("returned value", index, QString());
    // One number or word for true and false is changed as a constant, a text as a text.
    const QString call = m_tokens.text(first);
    const bool isText = call == QLatin1String("tr") || call == QLatin1String("QStringLiteral");
    const bool isWhole = m_tokens.partner(first + 1) + 1 == last;
    const bool isEmptyValue =
        isWhole && last == first + 3 && !call.isEmpty() && call.at(0).isUpper();
    const bool isConstant =
        last == first + 1 && (m_tokens.at(first).kind == Token::Kind::Number ||
                              m_tokens.is(first, "true") || m_tokens.is(first, "false"));
    const bool isEmptyList = m_tokens.is(first, "{") && m_tokens.partner(first) == first + 1;
    if (!isConstant && !isEmptyList && !isEmptyValue && !(isText && isWhole))
        replaceTokens("returned value", first, last, QStringLiteral("{}"));
}

void MutationFinder::findCharacter(int index)
{
    const Token &token = m_tokens.at(index);
    if (token.kind != Token::Kind::Text && token.kind != Token::Kind::Character)
        return;
    const QString other = otherCharacter(token.text);
    if (!other.isEmpty())
        replaceToken("character", index, other);
}

bool MutationFinder::isWholeCondition(int first, int last) const
{
    return m_tokens.conditionStart(first - 1) == first && m_tokens.partner(first - 1) == last;
}

void MutationFinder::replaceToken(const char *what, int index, const QString &replacement)
{
    replaceTokens(what, index, index + 1, replacement);
}

void MutationFinder::replaceTokens(const char *what, int first, int last,
                                   const QString &replacement)
{
    add(what, m_tokens.at(first).begin, m_tokens.at(last - 1).end, replacement);
}

void MutationFinder::add(const char *what, int begin, int end, const QString &replacement)
{
    const QString &source = m_tokens.source();
    const int lineStart = source.lastIndexOf(QLatin1Char('\n'), begin - source.size() - 1) + 1;
    const int lineBreak = source.indexOf(QLatin1Char('\n'), end);
    const int lineEnd = lineBreak < 0 ? source.size() : lineBreak;
    Mutation mutation;
    mutation.file = m_file;
    mutation.line = source.leftRef(begin).count(QLatin1Char('\n')) + 1;
    mutation.column = begin - lineStart + 1;
    mutation.offset = begin;
    mutation.what = QString::fromLatin1(what);
    mutation.original = source.mid(begin, end - begin);
    mutation.replacement = replacement;
    mutation.before = source.mid(lineStart, lineEnd - lineStart).simplified();
    mutation.after =
        (source.mid(lineStart, begin - lineStart) + replacement + source.mid(end, lineEnd - end))
            .simplified();
    m_mutations.append(mutation);
}
