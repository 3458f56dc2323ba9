#include "refhost/workbench/editor/OperandEditor.h"

#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/editor/ExactTextEdit.h"
#include "refhost/workbench/editor/NewVariableDialog.h"
#include "refhost/workbench/editor/ReferenceFacts.h"
#include "refhost/workbench/look/LabelText.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/values/InvisibleCharacter.h"
#include "refhost/workbench/values/NumberText.h"
#include "refhost/workbench/values/TypeWord.h"
#include "refhost/workbench/values/VisibleText.h"

#include <QMenu>
#include <QToolButton>

namespace {

constexpr int beginningUnits = 1000;
constexpr int nameUnits = 40;

/// The text of a menu item for a reference; the type stands in the column of the shortcuts.
QString itemText(const ReferenceChoice &choice)
{
    return labelText(visibleText(choice.text.mid(1), nameUnits)) + QLatin1Char('\t') +
           typeWord(choice.type);
}

} // namespace

OperandEditor::OperandEditor(const PropertySchema &schema, const TaskDocument &document,
                             QWidget *parent)
    : PropertyEditor(schema, document, parent)
    , m_field(new ExactTextEdit(this))
    , m_button(new QToolButton(this))
    , m_menu(new QMenu(this))
{
    m_field->setMostUnits(mostUnits);
    setField(m_field);
    createMenu();
    connect(m_field, &ExactTextEdit::textEdited, this, &OperandEditor::sendText);
    connect(m_field, &ExactTextEdit::oversized, this,
            [this](const QString &text) { Q_EMIT chosen(text); });
    connect(m_field, &ExactTextEdit::entered, this, [this] { focusNextChild(); });
}

void OperandEditor::showValue(const QVariant &value)
{
    const QString whole = value.toString();
    m_field->setLocked(isOversized());
    m_field->setText(isOversized() ? whole.left(beginningUnits) : whole);
}

OperandText OperandEditor::operand() const
{
    return isOversized() ? OperandText() : readOperand(text());
}

Remark OperandEditor::remarkNow()
{
    const OperandText operand = this->operand();
    if (isOversized()) {
        m_field->setPalette({});
        return {Remark::Kind::Note,
                tr("这段文本有 %1 个单元，这里只显示开头，不能直接编辑。")
                    .arg(groupedNumber(text().size())),
                tr("清空"), [this] { Q_EMIT chosen(QString()); }};
    }
    if (!operand.isReference) {
        m_field->setPalette({});
        return remarkOnLiteral(operand.literal);
    }
    const ReferenceFacts facts = referenceFacts(operand, document().state());
    showColor(facts.type == VarType::None);
    Remark remark = remarkOnReference(facts);
    if (!facts.declared && !operand.name.isEmpty()) {
        remark.fixText = tr("新建此变量");
        remark.fix = [this, name = operand.name] {
            Q_EMIT variableWanted({name, newType(), {}}, {});
        };
    }
    return remark;
}

Remark OperandEditor::remarkOnReference(const ReferenceFacts &facts) const
{
    return ::remarkOnReference(operand(), facts);
}

void OperandEditor::openMenu()
{
    if (m_button->isEnabled())
        m_menu->popup(m_button->mapToGlobal(m_button->rect().bottomLeft()));
}

void OperandEditor::createMenu()
{
    m_menu->setObjectName(QStringLiteral("editor.%1.menu").arg(schema().name));
    m_button->setObjectName(QStringLiteral("editor.%1.insert").arg(schema().name));
    m_button->setIcon(symbolIcon(QStringLiteral("variable")));
    m_button->setToolTip(tr("插入变量或特殊字符（Alt+↓）"));
    m_button->setAccessibleName(tr("插入变量或特殊字符"));
    m_button->setPopupMode(QToolButton::InstantPopup);
    m_button->setAutoRaise(true);
    m_button->setFocusPolicy(Qt::NoFocus);
    m_button->setMenu(m_menu);
    m_button->setFixedHeight(m_field->height());
    addBeside(m_button);
    connect(m_menu, &QMenu::aboutToShow, this, &OperandEditor::fillMenu);
}

void OperandEditor::fillMenu()
{
    m_menu->clear();
    m_menu->setToolTipsVisible(true);
    fillVariables();
    m_menu->addAction(symbolIcon(QStringLiteral("add")), tr("新建变量…"), this,
                      &OperandEditor::askForVariable);
    m_menu->addSeparator();
    QMenu *const characters =
        m_menu->addMenu(symbolIcon(QStringLiteral("text")), tr("插入特殊字符"));
    characters->setEnabled(!isOversized());
    fillCharacters(*characters);
}

void OperandEditor::fillVariables()
{
    const QList<ReferenceChoice> choices = referenceChoices(document().state());
    auto *const others = new QMenu(tr("其他类型"), m_menu);
    others->setObjectName(QStringLiteral("others"));
    for (const ReferenceChoice &choice : choices) {
        QMenu *const menu = isWelcome(choice.type) ? m_menu : others;
        QAction *const action =
            menu->addAction(symbolIcon(QStringLiteral("variable")), itemText(choice));
        action->setData(choice.text);
        connect(action, &QAction::triggered, this, [this, text = choice.text] { replaceBy(text); });
    }
    if (choices.isEmpty())
        m_menu->addAction(tr("还没有变量"))->setEnabled(false);
    if (!others->isEmpty())
        m_menu->addMenu(others);
    m_menu->addSeparator();
}

void OperandEditor::fillCharacters(QMenu &menu)
{
    const QVector<QPair<char16_t, QString>> characters{{u'\t', tr("制表符")},
                                                       {u'\n', tr("换行（Shift+Enter）")},
                                                       {u'\r', tr("回车")},
                                                       {u'\u00a0', tr("不换行空格")},
                                                       {u'\u3000', tr("全角空格")},
                                                       {u'\u200b', tr("零宽空格")},
                                                       {u'\ufeff', tr("零宽不换行空格")},
                                                       {u'\0', tr("空字符")}};
    for (const auto &offered : characters) {
        const QString character{QChar(offered.first)};
        QAction *const action =
            menu.addAction(offered.second + QLatin1Char('\t') + invisibleSign(character));
        action->setData(character);
        connect(action, &QAction::triggered, this,
                [this, character] { m_field->insertText(character); });
    }
}

void OperandEditor::askForVariable()
{
    auto *const dialog = new NewVariableDialog(document(), newType(), this);
    connect(dialog, &NewVariableDialog::wanted, this, [this](const TaskVariable &variable) {
        Q_EMIT variableWanted(variable, QString(QLatin1Char('$') + variable.name));
    });
    dialog->open();
}

/// An operand is a reference as a whole or not at all, so that one takes the place of the text.
void OperandEditor::replaceBy(const QString &text)
{
    Q_EMIT chosen(text);
    m_field->moveCursor(QTextCursor::End);
    focusField();
}

void OperandEditor::sendText()
{
    Q_EMIT typed(m_field->text());
}

void OperandEditor::showColor(bool isError)
{
    const Shades shades = Shades::of(palette());
    QPalette colors;
    colors.setColor(QPalette::Text, isError ? shades.error : shades.reference);
    if (m_field->palette().color(QPalette::Text) != colors.color(QPalette::Text))
        m_field->setPalette(colors);
}
