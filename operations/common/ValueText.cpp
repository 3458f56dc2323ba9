#include "operations/common/ValueText.h"

#include <QStringList>
#include <QVariantList>

bool isListLike(const QVariant &value)
{
    return value.canConvert(QMetaType::QVariantList);
}

QString variantToText(const QVariant &value)
{
    if (!isListLike(value))
        return value.toString();
    const auto elements = value.value<QVariantList>();
    QStringList pieces;
    pieces.reserve(elements.size());
    for (const QVariant &element : elements)
        pieces.append(variantToText(element));
    return pieces.join(QLatin1String(", "));
}
