#pragma once

#include "refhost/engine/check/NearName.h"

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
