#include "tests/mutation/SourceTokens.h"

#include "tests/mutation/Tokenizer.h"

#include <QSet>

#include <algorithm>

namespace {

bool opens(const QString &text)
{
    return text == QLatin1String("(") || text == QLatin1String("[") || text == QLatin1String("{");
}

bool closes(const QString &text)
{
    return text == QLatin1String(")") || text == QLatin1String("]") || text == QLatin1String("}");
}

bool isAnnotationName(const QString &text)
{
    static const QSet<QString> names{QStringLiteral("static_assert"),
                                     QStringLiteral("Q_PROPERTY"),
                                     QStringLiteral("Q_INTERFACES"),
                                     QStringLiteral("Q_PLUGIN_METADATA"),
                                     QStringLiteral("Q_DISABLE_COPY"),
                                     QStringLiteral("Q_DISABLE_COPY_MOVE"),
                                     QStringLiteral("Q_ENUM"),
                                     QStringLiteral("Q_FLAG"),
                                     QStringLiteral("Q_DECLARE_FLAGS"),
                                     QStringLiteral("Q_DECLARE_METATYPE"),
                                     QStringLiteral("Q_DECLARE_INTERFACE"),
                                     QStringLiteral("Q_UNUSED")};
    return names.contains(text);
}

} // namespace

SourceTokens::SourceTokens(const QString &source)
    : m_source(source)
    , m_tokens(tokenize(source))
{
    pairBrackets();
    markFunctions();
    markAnnotations();
}

QString SourceTokens::text(int index) const
{
    return index >= 0 && index < size() ? at(index).text : QString();
}

QString SourceTokens::text(int first, int last) const
{
    if (first >= last)
        return {};
    return m_source.mid(at(first).begin, at(last - 1).end - at(first).begin);
}

bool SourceTokens::is(int index, const char *text) const
{
    return index >= 0 && index < size() && at(index).text == QLatin1String(text);
}

bool SourceTokens::isSpaced(int index) const
{
    const Token &token = at(index);
    return token.begin > 0 && m_source.at(token.begin - 1).isSpace() &&
           token.end < m_source.size() && m_source.at(token.end).isSpace();
}

bool SourceTokens::endsOperand(int index) const
{
    if (index < 0 || is(index, "return") || is(index, "case"))
        return false;
    return at(index).kind != Token::Kind::Punctuator || is(index, ")") || is(index, "]");
}

bool SourceTokens::startsStatement(int index) const
{
    const int last = index - 1;
    if (is(last, ";") || is(last, "{") || is(last, "}") || is(last, "else") || is(last, "do"))
        return true;
    if (!is(last, ")"))
        return false;
    const int head = partner(last) - 1;
    return is(head, "if") || is(head, "for") || is(head, "while") || is(head, "constexpr");
}

int SourceTokens::next(int index, const QVector<const char *> &texts) const
{
    for (int i = index; i < size(); ++i) {
        const auto isText = [&](const char *text) { return is(i, text); };
        if (closes(at(i).text) || std::any_of(texts.begin(), texts.end(), isText))
            return i;
        if (partner(i) > i)
            i = partner(i);
    }
    return size();
}

int SourceTokens::colonOf(int question) const
{
    int nested = 0;
    int i = next(question + 1, {"?", ":"});
    while (is(i, "?") || (is(i, ":") && nested > 0)) {
        nested += is(i, "?") ? 1 : -1;
        i = next(i + 1, {"?", ":"});
    }
    return i;
}

int SourceTokens::chainStart(int end) const
{
    int i = end - 1;
    while (i >= 0) {
        if ((is(i, ")") || is(i, "]")) && partner(i) >= 0) {
            i = partner(i) - 1;
            // A bracket of its own, not the arguments or the index of what stands before it.
            if (!endsOperand(i))
                return i + 1;
            continue;
        }
        const bool linked = is(i - 1, ".") || is(i - 1, "->") || is(i - 1, "::");
        if (!linked)
            return i;
        i -= 2;
    }
    return 0;
}

int SourceTokens::chainEnd(int start) const
{
    int i = start;
    while (i < size()) {
        if ((is(i, "(") || is(i, "[")) && partner(i) > i)
            i = partner(i) + 1;
        else if (at(i).kind != Token::Kind::Punctuator)
            ++i;
        else
            return i;
        if (is(i, ".") || is(i, "->") || is(i, "::"))
            ++i;
        else if (!is(i, "(") && !is(i, "["))
            return i;
    }
    return i;
}

int SourceTokens::conditionStart(int open) const
{
    const int head = is(open - 1, "constexpr") ? open - 2 : open - 1;
    if (!is(open, "(") || partner(open) < 0 || !(is(head, "if") || is(head, "while")))
        return open;
    int start = open + 1;
    // What an "if" declares before its condition.
    for (int i = next(start, {";"}); is(i, ";"); i = next(start, {";"}))
        start = i + 1;
    return start;
}

void SourceTokens::pairBrackets()
{
    m_partners.fill(-1, size());
    QVector<int> open;
    for (int i = 0; i < size(); ++i) {
        if (at(i).kind != Token::Kind::Punctuator)
            continue;
        if (opens(at(i).text)) {
            open.append(i);
        } else if (closes(at(i).text) && !open.isEmpty()) {
            m_partners[i] = open.last();
            m_partners[open.takeLast()] = i;
        }
    }
}

bool SourceTokens::opensFunction(int brace) const
{
    const int last = brace - 1;
    return is(brace, "{") && (is(last, ")") || is(last, "]") || is(last, "const") ||
                              is(last, "override") || is(last, "noexcept") || is(last, "mutable"));
}

void SourceTokens::markFunctions()
{
    m_inFunction.fill(false, size());
    for (int i = 0; i < size(); ++i) {
        if (!opensFunction(i) || partner(i) < i)
            continue;
        const int end = partner(i);
        for (; i <= end; ++i)
            m_inFunction[i] = true;
        i = end;
    }
}

void SourceTokens::markAnnotations()
{
    m_annotations.fill(false, size());
    for (int i = 0; i < size(); ++i) {
        int end = i;
        if (is(i, "extern"))
            end = std::min(i + 2, size());
        else if (isAnnotationName(at(i).text) && partner(i + 1) > i)
            end = partner(i + 1);
        for (int k = i; k < end; ++k)
            m_annotations[k] = true;
    }
}
