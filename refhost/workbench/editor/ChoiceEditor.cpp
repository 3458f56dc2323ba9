#include "refhost/workbench/editor/ChoiceEditor.h"

#include <QComboBox>

ChoiceEditor::ChoiceEditor(const PropertySchema &schema, const TaskDocument &document,
                           QWidget *parent)
    : PropertyEditor(schema, document, parent)
    , m_field(new QComboBox(this))
{
    m_field->addItems(schema.shownChoices);
    m_field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_field->setMinimumContentsLength(6);
    m_field->setFocusPolicy(Qt::StrongFocus);
    setField(m_field);
    connect(m_field, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const bool isChoice = index < this->schema().choices.size();
        if (isChoice && index != value().toInt())
            Q_EMIT chosen(index);
    });
}

void ChoiceEditor::showValue(const QVariant &value)
{
    const int count = schema().choices.size();
    while (m_field->count() > count)
        m_field->removeItem(count);
    if (!isListed())
        m_field->addItem(tr("%1（不在列表中）").arg(value.toString()));
    m_field->setCurrentIndex(isListed() ? value.toInt() : count);
}

Remark ChoiceEditor::remarkNow()
{
    if (isListed())
        return {};
    return {Remark::Kind::Warning, tr("这个值不是任何选项，会保留到另选一项为止")};
}

bool ChoiceEditor::remarksOn(Mistake mistake) const
{
    return mistake == Mistake::UnknownMode;
}

bool ChoiceEditor::isListed() const
{
    const int index = value().toInt();
    return index >= 0 && index < schema().choices.size();
}
