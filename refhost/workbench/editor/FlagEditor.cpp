#include "refhost/workbench/editor/FlagEditor.h"

#include "refhost/workbench/look/LabelText.h"

#include <QCheckBox>

FlagEditor::FlagEditor(const PropertySchema &schema, const TaskDocument &document, QWidget *parent)
    : PropertyEditor(schema, document, parent)
    , m_field(new QCheckBox(this))
{
    m_field->setText(labelText(title()));
    setField(m_field, true);
    connect(m_field, &QCheckBox::clicked, this, [this](bool checked) { Q_EMIT chosen(checked); });
}

void FlagEditor::showValue(const QVariant &value)
{
    m_field->setChecked(value.toBool());
}
