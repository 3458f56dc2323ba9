#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

/// A declared name that somebody may have meant by another one, and how the two differ.
struct NearName
{
    enum class Difference {
        Far,    ///< no declared name is near
        Space,  ///< only in white space around it
        Braces, ///< only in braces around it
        Case,   ///< only in the case of letters
        Letters,
        Tail ///< the name goes on where the declared one ends
    };

    Difference difference = Difference::Far;
    QString name;
};

/// The one among `declared` that is nearest to `name`; the kinds of difference go before each other
/// in their order. Short names have to agree more closely than long ones.
NearName nearName(const QString &name, const QStringList &declared);

/// The size of the longest of `declared` with which `text` begins as with a word of its own, so not
/// "line" in "lines"; 0 when there is none.
int leadingNameSize(QStringView text, const QStringList &declared);
