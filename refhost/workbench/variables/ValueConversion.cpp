#include "refhost/workbench/variables/ValueConversion.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/engine/ValueType.h"
#include "refhost/workbench/variables/ValueInput.h"

#include <QVariantList>

#include <cmath>
#include <limits>

namespace {

bool isText(const QVariant &value)
{
    return value.userType() == QMetaType::QString;
}

bool isList(const QVariant &value)
{
    return value.userType() == QMetaType::QVariantList;
}

QVariant wholeNumber(double number)
{
    using Limits = std::numeric_limits<int>;
    const bool fits =
        number == std::trunc(number) && number >= Limits::min() && number <= Limits::max();
    return fits ? QVariant(static_cast<int>(number)) : QVariant();
}

QVariant truthValue(const QVariant &value)
{
    const double number = value.toDouble();
    return number == 0 || number == 1 ? QVariant(number == 1) : QVariant();
}

QVariant scalarFromNumber(const QVariant &value, VarType type)
{
    switch (type) {
    case VarType::Int:
        return wholeNumber(value.toDouble());
    case VarType::Double:
        return value.toDouble();
    case VarType::Bool:
        return truthValue(value);
    default:
        return inputText(value);
    }
}

QVariant scalar(const QVariant &value, VarType type)
{
    if (isList(value))
        return type == VarType::String ? QVariant(jsonText(variantToJson(value))) : QVariant();
    if (!isText(value))
        return scalarFromNumber(value, type);
    const Result<QVariant> read = valueFromInput(value.toString(), type);
    return read ? read.value() : QVariant();
}

QVariant list(const QVariant &value)
{
    if (isText(value)) {
        if (value.toString().isEmpty())
            return {};
        if (const auto read = variantFromText(value.toString(), VarType::List))
            return read.value();
    }
    return QVariantList{value};
}

QVariant table(const QVariant &value)
{
    QVariant rows = isList(value) ? value : list(value);
    if (!rows.isValid() || fitsType(rows, VarType::Table))
        return rows;
    QVariantList wrapped;
    const QVariantList elements = rows.toList();
    wrapped.reserve(elements.size());
    for (const QVariant &element : elements)
        wrapped.append(isList(element) ? element : QVariant(QVariantList{element}));
    return wrapped;
}

} // namespace

QVariant convertedValue(const QVariant &value, VarType type)
{
    if (!value.isValid() || fitsType(value, type))
        return value;
    switch (type) {
    case VarType::List:
        return list(value);
    case VarType::Table:
        return table(value);
    case VarType::None:
        return {};
    default:
        return scalar(value, type);
    }
}
