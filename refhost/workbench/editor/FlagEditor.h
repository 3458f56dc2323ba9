#pragma once

#include "refhost/workbench/editor/PropertyEditor.h"

class QCheckBox;

/// Edits a truth value.
class FlagEditor : public PropertyEditor
{
    Q_OBJECT

public:
    FlagEditor(const PropertySchema &schema, const TaskDocument &document,
               QWidget *parent = nullptr);

protected:
    void showValue(const QVariant &value) override;

private:
    QCheckBox *m_field;
};
