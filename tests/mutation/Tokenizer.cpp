#include "tests/mutation/Tokenizer.h"

#include <QRegularExpression>

namespace {

/// What a token or a stretch between two tokens looks like.
struct Rule
{
    enum class Action { Skip, Take };

    Action action;
    Token::Kind kind;
    QRegularExpression pattern;
};

Rule skip(const char *pattern)
{
    return {Rule::Action::Skip, Token::Kind::Punctuator,
            QRegularExpression(QString::fromUtf8(pattern))};
}

Rule take(Token::Kind kind, const char *pattern)
{
    return {Rule::Action::Take, kind, QRegularExpression(QString::fromUtf8(pattern))};
}

/// In the order in which they are tried.
const QVector<Rule> &rules()
{
    using Kind = Token::Kind;
    static const QVector<Rule> list{
        // A preprocessor line is known by its start, so no white space is skipped across a line
        // end.
        skip(R"((?<![^\n])[ \t]*#(?:[^\\\n]|\\(?:.|\n))*)"),
        skip(R"(\n|[^\S\n]+)"),
        skip(R"(//(?:[^\\\n]|\\(?:.|\n))*)"),
        skip(R"(/\*[\s\S]*?\*/)"),
        take(Kind::RawText, R"((?:u8|u|U|L)?R"([^(\s]*)\([\s\S]*?\)\1")"),
        take(Kind::Text, R"((?:u8|u|U|L)?"(?:[^"\\\n]|\\.)*")"),
        take(Kind::Character, R"((?:u8|u|U|L)?'(?:[^'\\\n]|\\.)*')"),
        take(Kind::Identifier, R"([A-Za-z_]\w*)"),
        take(Kind::Number, R"(\.?[0-9](?:[eEpP][+-]|'(?=\w)|[\w.])*)"),
        take(Kind::Punctuator,
             R"(\.\.\.|<<=|>>=|->\*|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||::|[-+*/%&|^]=|\.\*)"),
        take(Kind::Punctuator, R"(\S)"),
    };
    return list;
}

} // namespace

QVector<Token> tokenize(const QString &source)
{
    QVector<Token> tokens;
    int position = 0;
    while (position < source.size()) {
        for (const Rule &rule : rules()) {
            const auto match = rule.pattern.match(source, position, QRegularExpression::NormalMatch,
                                                  QRegularExpression::AnchoredMatchOption);
            if (!match.hasMatch() || match.capturedLength() == 0)
                continue;
            if (rule.action == Rule::Action::Take)
                tokens.append({rule.kind, position, match.capturedEnd(), match.captured()});
            position = match.capturedEnd();
            break;
        }
    }
    return tokens;
}
