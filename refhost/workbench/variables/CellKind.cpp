#include "refhost/workbench/variables/CellKind.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/workbench/values/TypeWord.h"
#include "refhost/workbench/values/ValuePreview.h"
#include "refhost/workbench/variables/ValueConversion.h"
#include "refhost/workbench/variables/ValueInput.h"

#include <QCoreApplication>

#include <limits>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CellKind)
};

VarType typeOf(CellKind kind)
{
    switch (kind) {
    case CellKind::Text:
        return VarType::String;
    case CellKind::Integer:
        return VarType::Int;
    case CellKind::Double:
        return VarType::Double;
    case CellKind::Bool:
        return VarType::Bool;
    case CellKind::List:
        return VarType::List;
    case CellKind::Other:
        break;
    }
    return VarType::None;
}

Problem refused(const QString &message)
{
    return {Problem::Reason::UnfitValue, {}, {}, message};
}

/// As in the lists of tasks: of 32 bits where it has room in them.
Result<QVariant> integerFromInput(const QString &text)
{
    bool isWhole = false;
    const qlonglong number = text.trimmed().toLongLong(&isWhole);
    if (!isWhole)
        return refused(Texts::tr("这里需要一个整数；要填别的内容，请先改变单元格的类型。"));
    using Limits = std::numeric_limits<int>;
    const bool isShort = number >= Limits::min() && number <= Limits::max();
    return isShort ? QVariant(static_cast<int>(number)) : QVariant(number);
}

} // namespace

CellKind cellKindOf(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
        return CellKind::Text;
    case QMetaType::Int:
    case QMetaType::LongLong:
        return CellKind::Integer;
    case QMetaType::Double:
        return CellKind::Double;
    case QMetaType::Bool:
        return CellKind::Bool;
    case QMetaType::QVariantList:
        return CellKind::List;
    default:
        return CellKind::Other;
    }
}

QStringList cellKindLabels()
{
    QStringList labels;
    for (const CellKind kind :
         {CellKind::Text, CellKind::Integer, CellKind::Double, CellKind::Bool, CellKind::List})
        labels.append(typeWord(typeOf(kind)));
    return labels;
}

Result<QVariant> cellFromInput(const QString &text, CellKind kind)
{
    if (kind == CellKind::Other)
        return refused(Texts::tr("这个单元格的内容不能修改。"));
    if (kind == CellKind::Integer)
        return integerFromInput(text);
    const Result<QVariant> read = valueFromInput(text, typeOf(kind));
    return !read || read.value().isValid() ? read : Result<QVariant>(emptyValue(typeOf(kind)));
}

QVariant convertedCell(const QVariant &value, CellKind kind)
{
    if (cellKindOf(value) == kind)
        return value;
    if (kind == CellKind::Integer && value.userType() == QMetaType::QString) {
        const Result<QVariant> read = integerFromInput(value.toString());
        return read ? read.value() : QVariant(0);
    }
    const QVariant converted = convertedValue(value, typeOf(kind));
    return converted.isValid() ? converted : emptyValue(typeOf(kind));
}

QString cellText(const QVariant &value)
{
    if (value.userType() == QMetaType::QVariantList)
        return jsonText(variantToJson(value));
    return inputText(value);
}
