#pragma once

#include "refhost/workbench/editor/OperandEditor.h"

/// Edits an operand that a step takes for its number.
class NumberOperandEditor : public OperandEditor
{
    Q_OBJECT

public:
    NumberOperandEditor(const PropertySchema &schema, const TaskDocument &document,
                        QWidget *parent = nullptr);

protected:
    bool isWelcome(VarType type) const override;
    VarType newType() const override;
    Remark remarkOnLiteral(const QString &literal) override;
    Remark remarkOnReference(const ReferenceFacts &facts) const override;
    bool remarksOn(Mistake mistake) const override;

private:
    bool isForWhole() const;
    Remark remarkOnNumber(double number) const;
    Remark remarkOnName(const QString &name);
};
