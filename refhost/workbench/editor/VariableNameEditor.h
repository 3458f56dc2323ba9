#pragma once

#include "refhost/workbench/editor/PropertyEditor.h"

class QComboBox;

/// Edits the bare name of a variable that a step reads or writes. Offers those of the type it asks
/// for; any other text can be typed.
class VariableNameEditor : public PropertyEditor
{
    Q_OBJECT

public:
    VariableNameEditor(const PropertySchema &schema, const TaskDocument &document,
                       QWidget *parent = nullptr);

protected:
    void showValue(const QVariant &value) override;
    Remark remarkNow() override;
    bool remarksOn(Mistake mistake) const override;

private:
    void createField();
    void fillList();
    void choose(int index);
    bool isOversized() const;
    void askForVariable();

    QString name() const { return value().toString(); }
    Remark remarkOnNothing();
    Remark remarkOnReference(const QString &bareName);
    Remark remarkOnUndeclared();
    Remark remarkOnType(VarType type);

    QComboBox *m_field;
};
