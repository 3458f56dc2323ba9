#include "refhost/workbench/variables/ValueInput.h"

#include "refhost/engine/JsonValue.h"
#include "refhost/workbench/values/NumberText.h"
#include "refhost/workbench/values/VisibleText.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ValueInput)
};

constexpr int longestLine = 1000; ///< of what is edited in place

QString expectation(VarType type)
{
    switch (type) {
    case VarType::Int:
        return Texts::tr("这里需要 -2147483648 到 2147483647 之间的整数。");
    case VarType::Double:
        return Texts::tr("这里需要一个数，例如 0.5、-3 或 1e6；也可以是 inf、-inf 或 nan。");
    case VarType::Bool:
        return Texts::tr("这里需要 true 或 false。");
    case VarType::List:
        return Texts::tr("这里需要一个 JSON 数组，例如 [1, \"a\"]。");
    case VarType::Table:
        return Texts::tr("这里需要由行组成的 JSON 数组，例如 [[1, 2], [3]]。");
    case VarType::String:
    case VarType::None:
        break;
    }
    return Texts::tr("这里不能填写这个值。");
}

bool isMinusZero(const QVariant &value, const QString &text)
{
    return value.userType() == QMetaType::Double && value.toDouble() == 0 &&
           text.startsWith(QLatin1Char('-'));
}

} // namespace

QString inputText(const QVariant &value)
{
    return value.userType() == QMetaType::Double ? numberText(value.toDouble()) : value.toString();
}

Result<QVariant> valueFromInput(const QString &text, VarType type)
{
    if (type == VarType::String)
        return QVariant(text);
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return QVariant();
    const Result<QVariant> read = variantFromText(trimmed, type);
    if (!read)
        return Problem{Problem::Reason::UnfitValue, {}, {}, expectation(type)};
    // As a whole number in JSON it has lost its sign.
    return isMinusZero(read.value(), trimmed) ? QVariant(-0.0) : read.value();
}

bool needsViewer(const QVariant &value, VarType type)
{
    if (type == VarType::List || type == VarType::Table ||
        value.userType() == QMetaType::QVariantList)
        return true;
    if (value.userType() != QMetaType::QString)
        return false;
    const QString text = value.toString();
    return text.size() > longestLine || !isPlainLine(text);
}
