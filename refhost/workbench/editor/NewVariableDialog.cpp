#include "refhost/workbench/editor/NewVariableDialog.h"

#include "refhost/engine/VarTypeName.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/document/VariableNames.h"
#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/values/TypeWord.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

NewVariableDialog::NewVariableDialog(const TaskDocument &document, VarType type, QWidget *parent)
    : QDialog(parent)
    , m_document(document)
    , m_name(new QLineEdit(freeVariableName(document.state(), tr("变量")), this))
    , m_type(new QComboBox(this))
    , m_problem(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("newVariable"));
    setWindowTitle(tr("新建变量"));
    createWidgets(type);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &NewVariableDialog::check);
    connect(this, &QDialog::accepted, this, [this] {
        Q_EMIT wanted({m_name->text(), static_cast<VarType>(m_type->currentData().toInt()), {}});
    });
    m_name->selectAll();
    check();
}

void NewVariableDialog::createWidgets(VarType type)
{
    m_name->setObjectName(QStringLiteral("newVariable.name"));
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 30);
    m_type->setObjectName(QStringLiteral("newVariable.type"));
    for (const QString &name : varTypeNames()) {
        const VarType offered = varTypeFromName(name);
        m_type->addItem(typeWord(offered), static_cast<int>(offered));
    }
    m_type->setCurrentIndex(m_type->findData(static_cast<int>(type)));
    m_problem->setObjectName(QStringLiteral("newVariable.problem"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    QPalette colors = m_problem->palette();
    colors.setColor(QPalette::WindowText, Shades::of(palette()).error);
    m_problem->setPalette(colors);
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("新建"));
    m_buttons->button(QDialogButtonBox::Cancel)->setText(tr("取消"));
    auto *const form = new QFormLayout(this);
    form->addRow(tr("名称(&N)："), m_name);
    form->addRow(tr("类型(&T)："), m_type);
    form->addRow(QString(), m_problem);
    form->addRow(m_buttons);
}

void NewVariableDialog::check()
{
    const QString problem = nameRefusal(m_document.state(), 0, m_name->text());
    m_problem->setText(problem);
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(problem.isEmpty());
}
