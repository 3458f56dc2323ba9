#pragma once

#include <QByteArray>
#include <QVector>

/// A member of a JSON object as it is written.
struct MemberText
{
    QByteArray key;   ///< with its quotes
    QByteArray value; ///< without white space around it
};

/// Returns the members of `object`, the JSON text of an object, in their order. If the text is
/// malformed, only the members before the malformed part are right.
QVector<MemberText> memberTexts(const QByteArray &object);
