#pragma once

#include "refhost/engine/NearName.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVector>

/// The declared names, prepared to be compared with many others. Belongs to one thread, since it
/// remembers what it was asked.
class NameIndex
{
public:
    explicit NameIndex(const QStringList &declared);

    /// The declared name that is nearest to `name`; the kinds of difference go before each other in
    /// their order, equally near names in the order of their declaration. Short names have to agree
    /// more closely than long ones.
    NearName nearest(const QString &name) const;

    /// The size of the longest declared name with which `text` begins as with a word of its own, so
    /// not "line" in "lines"; 0 when there is none.
    int leadingSize(QStringView text) const;

private:
    /// A declared name in small letters.
    struct Folded
    {
        QString text;
        quint64 letters = 0; ///< a bit for each, shared by some
    };

    NearName search(const QString &name) const;
    QString nearestByLetters(const QString &name) const;

    QStringList m_names;
    QVector<Folded> m_folded;          ///< in the order of the names
    QHash<QString, QString> m_trimmed; ///< the first name for each without white space around it
    QHash<QString, QString> m_small;   ///< the same in small letters
    QHash<QChar, QStringList> m_beginnings;
    mutable QHash<QString, NearName> m_answers;
};

/// Returns the first of the `known` names that is near enough to `name` to be meant by it, or an
/// empty text. Where names have sections, such as "text.append", the last section alone may be
/// given, and names that begin alike are compared by the rest alone.
QString nearestName(const QString &name, const QStringList &known);

/// Returns `message`, followed by a question for the name `near` unless that is empty:
/// `... (did you mean "text.append"?)`.
QString withSuggestion(const QString &message, const QString &near);
