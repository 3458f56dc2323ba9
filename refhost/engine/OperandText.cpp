#include "refhost/engine/OperandText.h"

#include "VariableScope.h"

#include <QObject>
#include <QStack>
#include <QStringList>
#include <QVariantList>

#include <algorithm>

namespace {

bool holdsElements(const QVariant &value)
{
    return value.canConvert(QMetaType::QVariantList);
}

QVariantList elementsOf(const QVariant &value)
{
    return value.value<QVariantList>();
}

/// The longest row; invalid unless the first element is a row.
QVariant columnsOf(const QVariantList &rows)
{
    if (!holdsElements(rows.value(0)))
        return {};
    int columns = 0;
    for (const QVariant &row : rows)
        columns = std::max(columns, elementsOf(row).size());
    return columns;
}

QVariant memberOf(const QVariant &value, const QString &path)
{
    const QString member = path.toLower();
    if (holdsElements(value)) {
        if (member == QLatin1String("count") || member == QLatin1String("rows"))
            return elementsOf(value).size();
        if (member == QLatin1String("columns"))
            return columnsOf(elementsOf(value));
        if (member == QLatin1String("items"))
            return value;
    }
    const auto *object = value.value<QObject *>();
    return object ? object->property(path.toUtf8().constData()) : QVariant();
}

} // namespace

OperandText readOperand(const QString &text)
{
    OperandText operand;
    operand.isReference = text.startsWith(QLatin1Char('$')) && text.size() > 1;
    if (!operand.isReference) {
        operand.literal = text;
        return operand;
    }
    operand.name = text.mid(1);
    // A "." that begins the name belongs to it.
    const int dot = operand.name.indexOf(QLatin1Char('.'));
    if (dot > 0) {
        operand.path = operand.name.mid(dot + 1);
        operand.name.truncate(dot);
    }
    return operand;
}

std::optional<double> literalNumber(const QString &literal)
{
    bool isNumber = false;
    const double number = literal.toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

QVariant operandValue(const OperandText &operand, const VariableScope &scope)
{
    if (operand.isReference) {
        const QVariant value = scope.get(operand.name);
        return operand.path.isEmpty() ? value : memberOf(value, operand.path);
    }
    const auto number = literalNumber(operand.literal);
    return number ? QVariant(*number) : QVariant(operand.literal);
}

std::optional<double> numberInValue(const QVariant &value)
{
    if (value.userType() == QMetaType::QString)
        return literalNumber(value.toString());
    return value.canConvert(QMetaType::Double) ? std::optional(value.toDouble()) : std::nullopt;
}

QString textOfValue(const QVariant &value)
{
    if (!holdsElements(value))
        return value.toString();
    QStringList texts;
    QStack<QVariant> open; // a loop, since lists can be nested deeper than calls
    open.push(value);
    while (!open.isEmpty()) {
        const QVariant next = open.pop();
        const QVariantList elements = elementsOf(next);
        // An empty list within a list has its place between two separators all the same.
        if (elements.isEmpty())
            texts.append(next.toString());
        for (auto element = elements.crbegin(); element != elements.crend(); ++element)
            open.push(*element);
    }
    return texts.join(QLatin1String(", "));
}
