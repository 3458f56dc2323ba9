#pragma once

#include "refhost/workbench/editor/PropertyEditor.h"

class QComboBox;

/// Edits a choice out of a list. A value that is not in the list is shown as it is and stays until
/// another one is chosen.
class ChoiceEditor : public PropertyEditor
{
    Q_OBJECT

public:
    ChoiceEditor(const PropertySchema &schema, const TaskDocument &document,
                 QWidget *parent = nullptr);

protected:
    void showValue(const QVariant &value) override;
    Remark remarkNow() override;
    bool remarksOn(Mistake mistake) const override;

private:
    bool isListed() const;

    QComboBox *m_field;
};
