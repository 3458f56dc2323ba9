#pragma once

#include "refhost/workbench/editor/OperandEditor.h"

/// Edits an operand that a step takes for its text.
class TextOperandEditor : public OperandEditor
{
    Q_OBJECT

public:
    using OperandEditor::OperandEditor;

protected:
    bool isWelcome(VarType type) const override;
    VarType newType() const override;
    Remark remarkOnLiteral(const QString &literal) override;
    Remark remarkOnReference(const ReferenceFacts &facts) const override;
    bool remarksOn(Mistake mistake) const override;
};
