#pragma once

#include "tests/mutation/Token.h"

#include <QString>
#include <QVector>

/// A source text as tokens, with what a search for changes asks about them. Tokens are named by
/// their index; an index outside is no token, and its text is empty.
class SourceTokens
{
public:
    explicit SourceTokens(const QString &source);

    /// The source text as it was given.
    const QString &source() const { return m_source; }

    int size() const { return m_tokens.size(); }
    const Token &at(int index) const { return m_tokens.at(index); }

    /// The text of a token, and the source text of those from `first` up to but without `last`.
    QString text(int index) const;
    QString text(int first, int last) const;
    bool is(int index, const char *text) const;

    /// Of a bracket that opens or closes, the other one; -1 of every other token.
    int partner(int index) const { return m_partners.value(index, -1); }

    /// Whether the token stands within the braces of a function.
    bool isInFunction(int index) const { return m_inFunction.at(index); }

    /// Whether the token is part of a declaration for the compiler or moc, not of the program.
    bool isAnnotation(int index) const { return m_annotations.at(index); }

    /// Whether there is white space on both sides. That tells operators from the brackets of
    /// template arguments, references and pointers, since the layout of the sources is fixed.
    bool isSpaced(int index) const;

    /// Whether the token stands where a value ends, so that an operator behind it has two operands.
    bool endsOperand(int index) const;

    /// Whether a statement begins with the token.
    bool startsStatement(int index) const;

    /// The first token from `index` on, brackets skipped, that is one of `texts` or closes the
    /// bracket around.
    int next(int index, const QVector<const char *> &texts) const;

    /// The ":" that belongs to the "?" at `question`, or where there is none what `next` stopped
    /// at.
    int colonOf(int question) const;

    /// The ends of a postfix expression such as "a.b(c)": its first token, seen from the one behind
    /// it, and the one behind it, seen from its first.
    int chainStart(int end) const;
    int chainEnd(int start) const;

    /// The first token of the condition of an "if" or "while" whose bracket is `open`; `open`
    /// itself when that is another bracket.
    int conditionStart(int open) const;

private:
    void pairBrackets();
    void markFunctions();
    void markAnnotations();
    bool opensFunction(int brace) const;

    QString m_source;
    QVector<Token> m_tokens;
    QVector<int> m_partners;
    QVector<bool> m_inFunction;
    QVector<bool> m_annotations;
};
