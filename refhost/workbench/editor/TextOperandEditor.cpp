#include "refhost/workbench/editor/TextOperandEditor.h"

#include "refhost/engine/check/TaskFacts.h"
#include "refhost/workbench/editor/PropertyTypes.h"
#include "refhost/workbench/editor/ReferenceFacts.h"

bool TextOperandEditor::isWelcome(VarType type) const
{
    return isAskedFor(schema(), type);
}

VarType TextOperandEditor::newType() const
{
    return namesType(schema().restriction, VarType::String) ? VarType::String
                                                            : preferredType(schema());
}

Remark TextOperandEditor::remarkOnLiteral(const QString &literal)
{
    const auto number = literalNumber(literal);
    // Where a number is welcome the way it is written does not matter.
    if (!number || asksForNumbers(schema()) || textOfValue(*number) == literal)
        return {};
    return {Remark::Kind::Warning, tr("将按数值 %1 使用").arg(textOfValue(*number))};
}

Remark TextOperandEditor::remarkOnReference(const ReferenceFacts &facts) const
{
    Remark remark = OperandEditor::remarkOnReference(facts);
    if (facts.type == VarType::None || isAskedFor(schema(), facts.type))
        return remark;
    remark.kind = Remark::Kind::Warning;
    remark.text = tr("%1；此处需要%2").arg(remark.text, typeWordsOf(schema()));
    return remark;
}

bool TextOperandEditor::remarksOn(Mistake mistake) const
{
    switch (mistake) {
    case Mistake::UndeclaredVariable:
    case Mistake::PathWithoutList:
    case Mistake::UnknownPath:
    case Mistake::ReferenceType:
    case Mistake::NumberAsText:
        return true;
    default:
        return false;
    }
}
