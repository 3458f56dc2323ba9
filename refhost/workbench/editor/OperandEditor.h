#pragma once

#include "refhost/engine/OperandText.h"
#include "refhost/workbench/editor/PropertyEditor.h"

class ExactTextEdit;
class QMenu;
class QToolButton;
struct ReferenceFacts;

/// What the editors of operands share: an exact text, a menu that inserts variables and special
/// characters, and a reference shown as one. A text of more than `mostUnits` is shown by its
/// beginning and can only be replaced as a whole.
class OperandEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static constexpr int mostUnits = 100000;

    OperandEditor(const PropertySchema &schema, const TaskDocument &document,
                  QWidget *parent = nullptr);

protected:
    void showValue(const QVariant &value) override;
    Remark remarkNow() final;
    void openMenu() override;

    QString text() const { return value().toString(); }
    /// The operand as it stands; a very long text is no reference to anything.
    OperandText operand() const;

    ExactTextEdit &field() { return *m_field; }

    /// Whether the menu puts references of that type first.
    virtual bool isWelcome(VarType type) const = 0;
    /// The type of a new variable.
    virtual VarType newType() const = 0;
    virtual Remark remarkOnLiteral(const QString &literal) = 0;
    virtual Remark remarkOnReference(const ReferenceFacts &facts) const;

private:
    void createMenu();
    void fillMenu();
    void fillVariables();
    void fillCharacters(QMenu &menu);
    void askForVariable();
    void replaceBy(const QString &text);
    void sendText();
    void showColor(bool isError);
    bool isOversized() const { return text().size() > mostUnits; }

    ExactTextEdit *m_field;
    QToolButton *m_button;
    QMenu *m_menu;
};
