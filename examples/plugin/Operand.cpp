#include "Operand.h"

#include "VariableScope.h"

#include <QVariantList>
#include <QVector>

#include <algorithm>

namespace {

bool isList(const QVariant &value)
{
    return value.userType() == QMetaType::QVariantList;
}

/// The length of the longest row of a table.
QVariant columnCount(const QVariantList &rows)
{
    if (rows.isEmpty() || !isList(rows.first()))
        return {};
    int columns = 0;
    for (const QVariant &row : rows)
        columns = std::max(columns, row.toList().size());
    return columns;
}

/// What "$name.member" stands for.
QVariant memberOf(const QVariant &value, const QString &member)
{
    const auto is = [&](const char *word) {
        return member.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    };
    if (!isList(value))
        return {};
    if (is("Count") || is("Rows"))
        return value.toList().size();
    if (is("Columns"))
        return columnCount(value.toList());
    return is("Items") ? value : QVariant();
}

/// A list, and how far it is written.
struct OpenList
{
    QVariantList elements;
    int next = 0;
};

/// A loop and no recursion, since lists can be nested deeper than calls can.
QString textOfList(const QVariantList &list)
{
    QString text;
    QVector<OpenList> open{{list, 0}};
    while (!open.isEmpty()) {
        OpenList &current = open.last();
        if (current.next == current.elements.size()) {
            open.removeLast();
            continue;
        }
        if (current.next > 0)
            text += QLatin1String(", ");
        const QVariant element = current.elements.at(current.next++);
        if (isList(element))
            open.append({element.toList(), 0});
        else
            text += element.toString();
    }
    return text;
}

} // namespace

QVariant operandValue(const QString &operand, const VariableScope &scope)
{
    if (!operand.startsWith(QLatin1Char('$')) || operand.size() < 2) {
        bool isNumber = false;
        const double number = operand.toDouble(&isNumber);
        return isNumber ? QVariant(number) : QVariant(operand);
    }
    const int dot = operand.indexOf(QLatin1Char('.'), 1);
    if (dot < 2) // none, or right behind the "$", where it belongs to the name
        return scope.get(operand.mid(1));
    const QVariant value = scope.get(operand.mid(1, dot - 1));
    const QString member = operand.mid(dot + 1);
    return member.isEmpty() ? value : memberOf(value, member);
}

QString operandText(const QString &operand, const VariableScope &scope)
{
    const QVariant value = operandValue(operand, scope);
    return isList(value) ? textOfList(value.toList()) : value.toString();
}

std::optional<double> operandNumber(const QString &operand, const VariableScope &scope)
{
    const QVariant value = operandValue(operand, scope);
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? std::optional<double>(number) : std::nullopt;
}
