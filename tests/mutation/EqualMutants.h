#pragma once

#include "tests/mutation/Mutation.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// The mutants known to do the same as the original, each with the reason. They stand in a text
/// file of blocks with the keys "file", "line", "mutant" and "reason"; an indented line goes on
/// where the one before it ended, and "#" begins a comment.
class EqualMutants
{
public:
    /// Reads the list. `*problem` is written when the text is no such list.
    static EqualMutants read(const QString &text, QString *problem);

    /// Why the mutant is equal; empty when it is not in the list.
    QString reason(const Mutation &mutation) const;

    /// The entries for these files that none of the mutations fits, one line each.
    QStringList unmatched(const QStringList &files, const QVector<Mutation> &mutations) const;

    /// The entries whose file is none of these, one line each.
    QStringList withoutFile(const QStringList &files) const;

private:
    struct Entry
    {
        QString file;
        QString line;
        QString mutant;
        QString reason;

        bool fits(const Mutation &mutation) const;
        bool isComplete() const;
        QString toString() const;
    };

    static QString *field(Entry &entry, const QString &key);

    QVector<Entry> m_entries;
};
