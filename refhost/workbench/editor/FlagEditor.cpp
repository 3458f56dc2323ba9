#include "refhost/workbench/editor/FlagEditor.h"

#include <QCheckBox>

FlagEditor::FlagEditor(const PropertySchema &schema, const TaskDocument &document, QWidget *parent)
    : PropertyEditor(schema, document, parent)
    , m_field(new QCheckBox(this))
{
    QString label = title();
    m_field->setText(label.replace(QLatin1Char('&'), QLatin1String("&&")));
    setField(m_field, true);
    connect(m_field, &QCheckBox::clicked, this, [this](bool checked) { Q_EMIT chosen(checked); });
}

void FlagEditor::showValue(const QVariant &value)
{
    m_field->setChecked(value.toBool());
}
