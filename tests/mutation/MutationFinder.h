#pragma once

#include "tests/mutation/Mutation.h"
#include "tests/mutation/SourceTokens.h"

#include <QString>
#include <QVector>

/// Finds the places of a source where one small change makes another program of it.
class MutationFinder
{
public:
    /// `file` is the name the mutations carry.
    MutationFinder(const QString &file, const QString &source);

    /// All mutations, in the order of their places.
    QVector<Mutation> all() const { return m_mutations; }

private:
    void findComparison(int index);
    void findConstant(int index);
    void findSign(int index);
    void findCondition(int index);
    void findBoolean(int index);
    void findBranches(int index);
    void findOtherFunction(int index);
    void findPredicate(int index);
    void findArguments(int index);
    void findStatement(int index);
    void findReturn(int index);
    void findCharacter(int index);

    bool isWholeCondition(int first, int last) const;
    void replaceToken(const char *what, int index, const QString &replacement);
    void replaceTokens(const char *what, int first, int last, const QString &replacement);
    void add(const char *what, int begin, int end, const QString &replacement);

    QString m_file;
    SourceTokens m_tokens;
    QVector<Mutation> m_mutations;
};
