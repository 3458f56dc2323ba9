#pragma once

#include <QString>
#include <QVariant>

/// Whether `value` can be taken as a list: a `QVariantList`, a `QStringList` or another sequential
/// container known to the meta-type system.
bool isListLike(const QVariant &value);

/// A value as text. Lists are rendered element by element and joined with ", ", nested lists with
/// the same separator and no brackets, however deep they are nested; an invalid value is empty
/// text; a `double` is the shortest text that reads back as the same number.
QString variantToText(const QVariant &value);

/// Every element rendered as `variantToText` does, with `separator` between them.
QString listToText(const QVariantList &elements, const QString &separator);
