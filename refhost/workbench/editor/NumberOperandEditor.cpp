#include "refhost/workbench/editor/NumberOperandEditor.h"

#include "refhost/engine/check/TaskFacts.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/editor/ExactTextEdit.h"
#include "refhost/workbench/editor/ReferenceFacts.h"
#include "refhost/workbench/values/VisibleText.h"

#include <cmath>
#include <limits>

namespace {

constexpr int previewUnits = 40;

/// Whether the number, cut to a whole one, has a place in 32 bits.
bool fitsInt(double number)
{
    const double whole = std::trunc(number);
    return whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max();
}

} // namespace

NumberOperandEditor::NumberOperandEditor(const PropertySchema &schema, const TaskDocument &document,
                                         QWidget *parent)
    : OperandEditor(schema, document, parent)
{
    field().setLineFeedsAllowed(false);
}

bool NumberOperandEditor::isWelcome(VarType type) const
{
    return type == VarType::Int || type == VarType::Double;
}

VarType NumberOperandEditor::newType() const
{
    return isForWhole() ? VarType::Int : VarType::Double;
}

Remark NumberOperandEditor::remarkOnLiteral(const QString &literal)
{
    if (literal.isEmpty())
        return {Remark::Kind::Warning, tr("没有填写数字")};
    if (const auto number = literalNumber(literal))
        return remarkOnNumber(*number);
    return remarkOnName(literal);
}

Remark NumberOperandEditor::remarkOnReference(const ReferenceFacts &facts) const
{
    Remark remark = OperandEditor::remarkOnReference(facts);
    switch (facts.type) {
    case VarType::List:
    case VarType::Table:
        remark.kind = Remark::Kind::Error;
        remark.text = tr("%1；这不是数字").arg(remark.text);
        break;
    case VarType::Bool:
        remark.kind = Remark::Kind::Warning;
        remark.text = tr("%1；true 算作 1，false 算作 0").arg(remark.text);
        break;
    case VarType::String:
        if (!facts.value.toString().isEmpty() && !numberInValue(facts.value)) {
            remark.kind = Remark::Kind::Warning;
            remark.text = tr("%1；这不是数字").arg(remark.text);
        }
        break;
    case VarType::Int:
    case VarType::Double:
    case VarType::None:
        break;
    }
    return remark;
}

bool NumberOperandEditor::remarksOn(Mistake mistake) const
{
    switch (mistake) {
    case Mistake::UndeclaredVariable:
    case Mistake::PathWithoutList:
    case Mistake::UnknownPath:
    case Mistake::ReferenceType:
    case Mistake::NotANumber:
    case Mistake::EmptyNumber:
        return true;
    default:
        return false;
    }
}

bool NumberOperandEditor::isForWhole() const
{
    return schema().editor == QLatin1String("NUMVAR:INT");
}

Remark NumberOperandEditor::remarkOnNumber(double number) const
{
    if (!isForWhole())
        return {};
    if (!fitsInt(number))
        return {Remark::Kind::Warning, tr("超出 32 位整数的范围")};
    const double whole = std::trunc(number);
    if (whole == number)
        return {};
    return {Remark::Kind::Note, tr("将截为整数 %1").arg(static_cast<int>(whole))};
}

/// On a literal that is no number, but may be a name without its "$".
Remark NumberOperandEditor::remarkOnName(const QString &name)
{
    Remark remark{Remark::Kind::Error, tr("“%1”不是数字").arg(visibleText(name, previewUnits))};
    if (document().state().variableNamed(name)) {
        const QString reference = QLatin1Char('$') + name;
        remark.fixText = tr("改为 %1").arg(visibleText(reference, previewUnits));
        remark.fix = [this, reference] { Q_EMIT chosen(reference); };
    }
    return remark;
}
