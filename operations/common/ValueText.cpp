#include "operations/common/ValueText.h"

#include <QVarLengthArray>
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

/// The text that `value` holds, where it is; valid for as long as the value.
const QString &textIn(const QVariant &value)
{
    return *static_cast<const QString *>(value.constData());
}

/// Makes room at once for the texts among the elements, if these are few: large texts are not to be
/// moved while the text grows.
void reserveForTexts(QString &text, const QVariantList &elements, const QString &separator)
{
    constexpr int few = 1024;
    if (elements.isEmpty() || elements.size() > few)
        return;
    qint64 size = qint64(separator.size()) * (elements.size() - 1);
    for (const QVariant &element : elements) {
        if (isText(element))
            size += textIn(element).size();
    }
    if (size > std::numeric_limits<int>::max())
        throw std::bad_alloc();
    if (size > 0)
        text.reserve(static_cast<int>(size));
}

/// Appends a list that may hold lists. A loop, since a list can be nested deeper than calls can.
void appendNested(QString &text, const QVariantList &list)
{
    QVarLengthArray<OpenList, 4> open;
    open.append({list, 0});
    while (!open.isEmpty()) {
        OpenList &current = open.last();
        if (current.next == current.elements.size()) {
            open.removeLast();
            continue;
        }
        if (current.next > 0)
            text += QLatin1String(", ");
        const QVariant &element = current.elements.at(current.next++);
        if (isText(element))
            text += textIn(element);
        else if (isListLike(element))
            open.append({element.value<QVariantList>(), 0});
        else
            text += element.toString();
    }
}

} // namespace

bool isListLike(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
    case QMetaType::Double:
    case QMetaType::Int:
    case QMetaType::Bool:
        return false; // the usual values, without asking for a conversion
    default:
        return value.canConvert(QMetaType::QVariantList);
    }
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
        if (isText(element))
            text += textIn(element);
        else if (isListLike(element))
            appendNested(text, element.value<QVariantList>());
        else
            text += element.toString();
    }
    return text;
}
