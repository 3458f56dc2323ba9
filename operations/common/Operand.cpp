#include "operations/common/Operand.h"

#include "operations/common/Truncation.h"
#include "operations/common/ValueText.h"

#include "VariableScope.h"

#include <QObject>
#include <QVariantList>

#include <algorithm>

namespace {

bool isPath(const QString &path, QLatin1String member)
{
    return path.compare(member, Qt::CaseInsensitive) == 0;
}

/// The width of a table: the length of its longest row. Only the first element has to be a row;
/// later ones that are none count as empty.
QVariant columnCount(const QVariantList &rows)
{
    if (rows.isEmpty() || !isListLike(rows.first()))
        return {};
    int columns = 0;
    for (const QVariant &row : rows)
        columns = std::max(columns, row.value<QVariantList>().size());
    return columns;
}

QVariant resolveProperty(const QVariant &value, const QString &path)
{
    if (!value.canConvert(QMetaType::QObjectStar))
        return {};
    const auto *object = value.value<QObject *>();
    return object ? object->property(path.toUtf8().constData()) : QVariant();
}

QVariant resolveMember(const QVariant &value, const QString &path)
{
    if (isListLike(value)) {
        if (isPath(path, QLatin1String("Rows")) || isPath(path, QLatin1String("Count")))
            return value.value<QVariantList>().size();
        if (isPath(path, QLatin1String("Columns")))
            return columnCount(value.value<QVariantList>());
        if (isPath(path, QLatin1String("Items")))
            return value;
    }
    return resolveProperty(value, path);
}

} // namespace

OperandRef parseOperand(const QString &text)
{
    OperandRef ref;
    if (text.size() < 2 || !text.startsWith(QLatin1Char('$'))) {
        ref.literal = text;
        return ref;
    }
    ref.isVariable = true;
    const int dot = text.indexOf(QLatin1Char('.'), 1);
    if (dot > 1) {
        ref.name = text.mid(1, dot - 1);
        ref.path = text.mid(dot + 1);
    } else {
        ref.name = text.mid(1);
    }
    return ref;
}

QVariant resolveOperand(const OperandRef &ref, VariableScope *scope)
{
    if (!ref.isVariable) {
        bool isNumber = false;
        const double number = ref.literal.toDouble(&isNumber);
        return isNumber ? QVariant(number) : QVariant(ref.literal);
    }
    const QVariant value = scope ? scope->get(ref.name) : QVariant();
    return ref.path.isEmpty() ? value : resolveMember(value, ref.path);
}

QString resolveTextOperand(const QString &operand, VariableScope *scope)
{
    return variantToText(resolveOperand(parseOperand(operand), scope));
}

double resolveNumberOperand(VariableScope *scope, const QString &operand, bool *ok)
{
    const QVariant value = resolveOperand(parseOperand(operand), scope);
    bool isNumber = value.canConvert(QMetaType::Double);
    double number = 0.0;
    if (value.type() == QVariant::String)
        number = value.toString().toDouble(&isNumber);
    else
        number = value.toDouble();
    if (ok)
        *ok = isNumber;
    // Qt hands out an infinity for a text beyond the range, though it is no number.
    return isNumber ? number : 0.0;
}

int resolveIntOperand(VariableScope *scope, const QString &operand, int fallback)
{
    bool isNumber = false;
    const double number = resolveNumberOperand(scope, operand, &isNumber);
    return isNumber ? truncateToInt(number) : fallback;
}
