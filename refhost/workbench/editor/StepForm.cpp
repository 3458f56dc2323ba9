#include "refhost/workbench/editor/StepForm.h"

#include "refhost/engine/OperationSchema.h"
#include "refhost/engine/PropertyRole.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/editor/EditorFactory.h"
#include "refhost/workbench/editor/PropertyEditor.h"

#include "Operation.h"

#include <QMetaProperty>
#include <QVBoxLayout>

#include <algorithm>

StepForm::StepForm(const Operation &step, TaskDocument &document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_class(step.metaObject())
    , m_typeId(step.typeId())
{
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(fontMetrics().height() * 3 / 4);
    const QList<PropertySchema> properties = OperationSchema(step).properties();
    for (const PropertySchema &schema : properties) {
        const int index = m_class->indexOfProperty(schema.name.toUtf8().constData());
        const bool writable = m_class->property(index).isWritable();
        add(createEditor(schema, writable, document, this));
    }
    column->addStretch(1);
}

bool StepForm::fits(const Operation &step) const
{
    return step.metaObject() == m_class && step.typeId() == m_typeId;
}

void StepForm::showStep(int id, const Operation &step)
{
    m_step = id;
    for (PropertyEditor *const editor : qAsConst(m_editors)) {
        const PropertySchema &schema = editor->schema();
        editor->setValue(step.property(schema.name.toUtf8().constData()));
        editor->setVisible(isShown(schema, step));
    }
}

void StepForm::setFindings(const QList<Finding> &findings)
{
    for (PropertyEditor *const editor : qAsConst(m_editors))
        editor->setFindings(findings);
}

PropertyEditor *StepForm::editor(const QString &property) const
{
    const auto found =
        std::find_if(m_editors.cbegin(), m_editors.cend(), [&](const PropertyEditor *editor) {
            return editor->schema().name == property;
        });
    return found == m_editors.cend() ? nullptr : *found;
}

PropertyEditor *StepForm::editorToFocus(const QString &property)
{
    PropertyEditor *const wanted = editor(property);
    if (!wanted || !wanted->isHidden())
        return wanted;
    PropertyEditor *const choice = editor(wanted->schema().conditionName);
    if (!choice || choice->isHidden())
        return nullptr;
    choice->setHint(tr("“%1”在当前选择下不显示，也不使用").arg(wanted->title()));
    return choice;
}

void StepForm::add(PropertyEditor *editor)
{
    m_editors.append(editor);
    layout()->addWidget(editor);
    connect(editor, &PropertyEditor::typed, this,
            [this, editor](const QVariant &value) { setValue(*editor, value, true); });
    connect(editor, &PropertyEditor::chosen, this,
            [this, editor](const QVariant &value) { setValue(*editor, value, false); });
    connect(editor, &PropertyEditor::variableWanted, this,
            [this, editor](const TaskVariable &variable, const QVariant &value) {
                declare(*editor, variable, value);
            });
    connect(editor, &PropertyEditor::left, &m_document, &TaskDocument::endTyping);
    connect(editor, &PropertyEditor::undoWanted, &m_document, &TaskDocument::undo);
    connect(editor, &PropertyEditor::redoWanted, &m_document, &TaskDocument::redo);
}

void StepForm::setValue(const PropertyEditor &editor, const QVariant &value, bool typing)
{
    const PropertySchema &schema = editor.schema();
    const TaskState next = m_document.state().withProperty(m_step, schema.name, value);
    const QString text = tr("编辑“%1”").arg(editor.title());
    const EditPlace place{m_step, schema.name, 0};
    if (!typing) {
        m_typing.end();
        m_document.change(text, next, place);
        return;
    }
    const Operation &step = *m_document.state().step(m_step)->operation;
    const QVariant before = step.property(schema.name.toUtf8().constData());
    if (!m_typing.takesIn(before.toString(), value.toString()))
        m_document.endTyping();
    m_document.type(text, next, place);
}

void StepForm::declare(const PropertyEditor &editor, const TaskVariable &variable,
                       const QVariant &value)
{
    const TaskState &state = m_document.state();
    if (state.variableNamed(variable.name))
        return;
    TaskState next = state.withVariable(state.variables.size(), {newStateId(), variable});
    if (value.isValid())
        next = next.withProperty(m_step, editor.schema().name, value);
    m_document.change(tr("新建变量“%1”").arg(variable.name), next,
                      {m_step, editor.schema().name, 0});
}
