#include "operations/common/ValueText.h"

#include <QStack>
#include <QVariantList>

#include <limits>
#include <new>

namespace {

/// A list, and how far it is rendered.
struct OpenList
{
    QVariantList elements;
    int next = 0;
};

bool isText(const QVariant &value)
{
    return value.userType() == QMetaType::QString;
}

/// Makes room at once for the texts among the elements: they are what lists are mostly made of, and
/// what makes them large.
void reserveForTexts(QString &text, const QVariantList &elements, const QString &separator)
{
    qint64 size = qint64(separator.size()) * elements.size();
    for (const QVariant &element : elements) {
        if (isText(element))
            size += static_cast<const QString *>(element.constData())->size();
    }
    if (size > std::numeric_limits<int>::max())
        throw std::bad_alloc();
    if (size > 0)
        text.reserve(static_cast<int>(size));
}

/// Appends a list that may hold lists. A loop, since a list can be nested deeper than calls can.
void appendNested(QString &text, const QVariantList &list)
{
    QStack<OpenList> open;
    open.push({list});
    while (!open.isEmpty()) {
        OpenList &current = open.top();
        if (current.next == current.elements.size()) {
            open.pop();
            continue;
        }
        if (current.next > 0)
            text += QLatin1String(", ");
        const QVariant &element = current.elements.at(current.next++);
        if (isListLike(element))
            open.push({element.value<QVariantList>()});
        else
            text += element.toString();
    }
}

} // namespace

bool isListLike(const QVariant &value)
{
    return !isText(value) && value.canConvert(QMetaType::QVariantList);
}

QString variantToText(const QVariant &value)
{
    if (!isListLike(value))
        return value.toString();
    return listToText(value.value<QVariantList>(), QStringLiteral(", "));
}

QString listToText(const QVariantList &elements, const QString &separator)
{
    QString text;
    reserveForTexts(text, elements, separator);
    for (int i = 0; i < elements.size(); ++i) {
        if (i > 0)
            text += separator;
        const QVariant &element = elements.at(i);
        if (isListLike(element))
            appendNested(text, element.value<QVariantList>());
        else
            text += element.toString();
    }
    return text;
}
