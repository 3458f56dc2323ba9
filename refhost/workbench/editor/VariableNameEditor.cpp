#include "refhost/workbench/editor/VariableNameEditor.h"

#include "refhost/engine/OperandText.h"
#include "refhost/engine/PropertyRole.h"
#include "refhost/engine/check/TaskFacts.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/document/VariableNames.h"
#include "refhost/workbench/editor/NewVariableDialog.h"
#include "refhost/workbench/editor/PropertyTypes.h"
#include "refhost/workbench/editor/VariableItemDelegate.h"
#include "refhost/workbench/values/TypeWord.h"
#include "refhost/workbench/values/VisibleText.h"

#include <QComboBox>
#include <QLineEdit>

#include <limits>

namespace {

constexpr int mostUnits = 10000;
constexpr int beginningUnits = 200;
constexpr int nameUnits = 40;

QString shortened(const QString &name)
{
    return visibleText(name, nameUnits);
}

/// Makes these the items, and touches none that is already there.
void setItems(QComboBox &field, const QStringList &names, const QVector<int> &types)
{
    for (int i = 0; i < names.size(); ++i) {
        if (i >= field.count())
            field.addItem(names.at(i));
        if (field.itemText(i) != names.at(i))
            field.setItemText(i, names.at(i));
        if (field.itemData(i, VariableItemDelegate::TypeRole) != types.at(i))
            field.setItemData(i, types.at(i), VariableItemDelegate::TypeRole);
    }
    while (field.count() > names.size())
        field.removeItem(field.count() - 1);
}

} // namespace

VariableNameEditor::VariableNameEditor(const PropertySchema &schema, const TaskDocument &document,
                                       QWidget *parent)
    : PropertyEditor(schema, document, parent)
    , m_field(new QComboBox(this))
{
    createField();
    setField(m_field);
    connect(m_field->lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString &text) { Q_EMIT typed(text); });
    connect(m_field->lineEdit(), &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    connect(m_field, qOverload<int>(&QComboBox::activated), this, &VariableNameEditor::choose);
}

void VariableNameEditor::createField()
{
    m_field->setEditable(true);
    // What is typed stays as it is: no item of the list completes it or takes it up.
    m_field->setCompleter(nullptr);
    m_field->setInsertPolicy(QComboBox::NoInsert);
    m_field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_field->setMinimumContentsLength(6);
    m_field->setItemDelegate(new VariableItemDelegate(m_field));
    m_field->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
}

void VariableNameEditor::showValue(const QVariant &value)
{
    Q_UNUSED(value)
    QLineEdit &line = *m_field->lineEdit();
    const QString shown = isOversized() ? name().left(beginningUnits) : name();
    line.setReadOnly(isOversized());
    if (line.text() == shown)
        return;
    const int cursor = line.cursorPosition();
    line.setText(shown);
    line.setCursorPosition(cursor);
}

Remark VariableNameEditor::remarkNow()
{
    fillList();
    if (isOversized()) {
        return {Remark::Kind::Error, tr("这个名称太长，只显示开头"), tr("清空"),
                [this] { Q_EMIT chosen(QString()); }};
    }
    if (name().isEmpty())
        return remarkOnNothing();
    const VariableState *const declared = document().state().variableNamed(name());
    const OperandText operand = readOperand(name());
    if (!declared && operand.isReference)
        return remarkOnReference(name().mid(1));
    if (!declared)
        return remarkOnUndeclared();
    const VarType type = declared->variable.type;
    if (!schema().restriction.isEmpty() && !namesType(schema().restriction, type))
        return remarkOnType(type);
    return {};
}

bool VariableNameEditor::remarksOn(Mistake mistake) const
{
    switch (mistake) {
    case Mistake::EmptyResult:
    case Mistake::EmptyInput:
    case Mistake::NameWithDollar:
    case Mistake::UndeclaredVariable:
    case Mistake::UndeclaredResult:
    case Mistake::ResultType:
    case Mistake::InputType:
        return true;
    default:
        return false;
    }
}

/// The variables that fit, in their order. The text of the field is not the list's.
void VariableNameEditor::fillList()
{
    QStringList names;
    QVector<int> types;
    for (const VariableState &state : document().state().variables) {
        const TaskVariable &variable = state.variable;
        if (!schema().restriction.isEmpty() && !namesType(schema().restriction, variable.type))
            continue;
        names.append(variable.name);
        types.append(static_cast<int>(variable.type));
    }
    QLineEdit &line = *m_field->lineEdit();
    const QString shown = line.text();
    const int cursor = line.cursorPosition();
    const int selected = line.selectionStart();
    const int selectedSize = line.selectionLength();
    setItems(*m_field, names, types);
    m_field->setCurrentIndex(names.indexOf(shown));
    if (line.text() != shown)
        line.setText(shown);
    if (selected >= 0)
        line.setSelection(selected, selectedSize);
    else
        line.setCursorPosition(cursor);
}

void VariableNameEditor::choose(int index)
{
    const QString chosenName = m_field->itemText(index);
    if (chosenName != name())
        Q_EMIT chosen(chosenName);
}

bool VariableNameEditor::isOversized() const
{
    return name().size() > mostUnits;
}

void VariableNameEditor::askForVariable()
{
    auto *const dialog = new NewVariableDialog(document(), preferredType(schema()), this);
    connect(dialog, &NewVariableDialog::wanted, this, [this](const TaskVariable &variable) {
        Q_EMIT variableWanted(variable, variable.name);
    });
    dialog->open();
}

Remark VariableNameEditor::remarkOnNothing()
{
    const bool isResult = roleOf(schema()) == PropertyRole::Result;
    return {isResult ? Remark::Kind::Error : Remark::Kind::Warning,
            isResult ? tr("没有指定保存结果的变量") : tr("没有指定变量"), tr("新建变量…"),
            [this] { askForVariable(); }};
}

Remark VariableNameEditor::remarkOnReference(const QString &bareName)
{
    return {Remark::Kind::Error, tr("此处只写变量名，前面不加“$”"),
            tr("改为 %1").arg(shortened(bareName)), [this, bareName] { Q_EMIT chosen(bareName); }};
}

Remark VariableNameEditor::remarkOnUndeclared()
{
    return {Remark::Kind::Error, tr("没有变量“%1”").arg(shortened(name())),
            tr("新建变量 %1（%2）").arg(shortened(name()), typeWord(preferredType(schema()))),
            [this] {
                Q_EMIT variableWanted({name(), preferredType(schema()), {}}, {});
            }};
}

Remark VariableNameEditor::remarkOnType(VarType type)
{
    const bool isResult = roleOf(schema()) == PropertyRole::Result;
    const bool isTaken = isResult && takesResult(schema(), type);
    const QString other = freeVariableName(document().state(), name());
    return {isTaken ? Remark::Kind::Warning : Remark::Kind::Error,
            tr("变量 %1 是%2，此处需要%3")
                .arg(shortened(name()), typeWord(type), typeWordsOf(schema())),
            tr("新建变量 %1（%2）").arg(shortened(other), typeWord(preferredType(schema()))),
            [this, other] {
                Q_EMIT variableWanted({other, preferredType(schema()), {}}, other);
            }};
}
