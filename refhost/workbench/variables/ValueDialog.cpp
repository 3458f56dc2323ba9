#include "refhost/workbench/variables/ValueDialog.h"

#include "refhost/workbench/look/Shades.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int columns = 100; ///< in widths of "x"
constexpr int rows = 32;

} // namespace

ValueDialog::ValueDialog(const QString &title, ValueSetter setter, QWidget *parent)
    : QDialog(parent)
    , m_setter(std::move(setter))
    , m_content(new QVBoxLayout)
    , m_message(new QLabel(this))
{
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setSizeGripEnabled(true);
    m_message->setObjectName(QStringLiteral("value.message"));
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_message->hide();
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(m_content, 1);
    layout->addWidget(m_message);
    layout->addWidget(createButtons());
    resize(fontMetrics().averageCharWidth() * columns, fontMetrics().height() * rows);
}

QWidget *ValueDialog::createButtons()
{
    auto *const buttons = new QDialogButtonBox(this);
    if (!isReadOnly()) {
        QPushButton *const ok = buttons->addButton(tr("确定"), QDialogButtonBox::AcceptRole);
        ok->setObjectName(QStringLiteral("value.ok"));
        ok->setShortcut(int(Qt::CTRL) + Qt::Key_Return);
        ok->setToolTip(tr("确定 (Ctrl+Enter)"));
        connect(buttons, &QDialogButtonBox::accepted, this, &ValueDialog::accept);
    }
    QPushButton *const leave =
        buttons->addButton(isReadOnly() ? tr("关闭") : tr("取消"), QDialogButtonBox::RejectRole);
    leave->setObjectName(QStringLiteral("value.cancel"));
    connect(buttons, &QDialogButtonBox::rejected, this, [this] { QDialog::reject(); });
    // Enter belongs to the content.
    for (QAbstractButton *const button : buttons->buttons())
        qobject_cast<QPushButton *>(button)->setAutoDefault(false);
    return buttons;
}

void ValueDialog::accept()
{
    if (isReadOnly()) {
        QDialog::reject();
        return;
    }
    if (!commitEditing())
        return;
    const QString refusal = isModified() ? m_setter(value()) : QString();
    if (refusal.isEmpty())
        QDialog::accept();
    else
        tell(refusal);
}

void ValueDialog::reject()
{
    if (!isReadOnly() && isModified() && !m_hasWarned) {
        m_hasWarned = true;
        tell(tr("有修改尚未确定。再按一次 Esc 或再次关闭，就会放弃这些修改。"));
        return;
    }
    QDialog::reject();
}

void ValueDialog::keyPressEvent(QKeyEvent *event)
{
    // The dialog would close with it wherever it is pressed, for instance after a search.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

void ValueDialog::tell(const QString &message)
{
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Shades::of(colors).warning);
    m_message->setPalette(colors);
    m_message->setText(message);
    m_message->setVisible(!message.isEmpty());
}
