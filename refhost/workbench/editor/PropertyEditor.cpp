#include "refhost/workbench/editor/PropertyEditor.h"

#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/editor/RemarkLine.h"
#include "refhost/workbench/look/LabelText.h"
#include "refhost/workbench/look/ShownToolTip.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStyle>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

Remark::Kind kindOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return Remark::Kind::Error;
    case Severity::Warning:
        return Remark::Kind::Warning;
    case Severity::Note:
        break;
    }
    return Remark::Kind::Note;
}

QMenu *standardMenu(QWidget *field)
{
    if (auto *const line = qobject_cast<QLineEdit *>(field))
        return line->createStandardContextMenu();
    if (auto *const text = qobject_cast<QTextEdit *>(field))
        return text->createStandardContextMenu();
    return nullptr;
}

} // namespace

PropertyEditor::PropertyEditor(const PropertySchema &schema, const TaskDocument &document,
                               QWidget *parent)
    : QWidget(parent)
    , m_schema(schema)
    , m_document(document)
    , m_label(new QLabel(labelText(title()), this))
    , m_row(new QHBoxLayout)
    , m_column(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("editor.%1.row").arg(schema.name));
    m_label->setObjectName(QStringLiteral("editor.%1.label").arg(schema.name));
    m_label->setWordWrap(true);
    m_label->setTextFormat(Qt::PlainText);
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(fontMetrics().height() / 4);
    m_row->setSpacing(fontMetrics().height() / 4);
    m_column->addWidget(m_label);
    m_column->addLayout(m_row);
}

QString PropertyEditor::title() const
{
    return m_schema.shownLabel.isEmpty() ? m_schema.name : m_schema.shownLabel;
}

void PropertyEditor::setValue(const QVariant &value)
{
    m_value = value;
    m_hint->setRemark({});
    showValue(value);
    refresh();
}

void PropertyEditor::refresh()
{
    m_remark->setRemark(remarkNow());
    showFindings();
}

void PropertyEditor::setFindings(const QList<Finding> &findings)
{
    m_found.clear();
    for (const Finding &finding : findings) {
        if (finding.property == m_schema.name)
            m_found.append(finding);
    }
    showFindings();
}

void PropertyEditor::showFindings()
{
    QList<Finding> shown;
    QStringList covered;
    for (const Finding &finding : qAsConst(m_found)) {
        if (!remarksOn(finding.mistake))
            shown.append(finding);
        else
            covered.append({finding.consequence, finding.remedy});
    }
    m_remark->setToolTip(shownToolTip(covered.join(QLatin1Char('\n'))));
    while (m_findings.size() > shown.size())
        delete m_findings.takeLast();
    while (m_findings.size() < shown.size())
        m_findings.append(addRemark(QStringLiteral("finding")));
    for (int i = 0; i < shown.size(); ++i) {
        const Finding &finding = shown.at(i);
        m_findings.at(i)->setRemark({kindOf(finding.severity), finding.message});
        m_findings.at(i)->setToolTip(
            shownToolTip(finding.consequence + QLatin1Char('\n') + finding.remedy));
    }
}

void PropertyEditor::setHint(const QString &hint)
{
    m_hint->setRemark({Remark::Kind::Note, hint});
}

void PropertyEditor::focusField()
{
    if (m_field)
        m_field->setFocus(Qt::ShortcutFocusReason);
}

bool PropertyEditor::remarksOn(Mistake mistake) const
{
    Q_UNUSED(mistake)
    return false;
}

void PropertyEditor::setField(QWidget *field, bool hasOwnLabel)
{
    m_field = field;
    field->setObjectName(QStringLiteral("editor.%1").arg(m_schema.name));
    field->setAccessibleName(title());
    field->installEventFilter(this);
    if (field->focusProxy())
        field->focusProxy()->installEventFilter(this);
    if (auto *const area = qobject_cast<QAbstractScrollArea *>(field))
        area->viewport()->installEventFilter(this);
    const auto lines = field->findChildren<QLineEdit *>();
    for (QLineEdit *const line : lines)
        line->installEventFilter(this);
    m_label->setBuddy(field);
    m_label->setVisible(!hasOwnLabel);
    m_row->insertWidget(0, field, 1);
    // Made after the field, so that their buttons come after it by the tabulator too.
    m_remark = addRemark(QStringLiteral("remark"));
    m_hint = addRemark(QStringLiteral("hint"));
}

RemarkLine *PropertyEditor::addRemark(const QString &name)
{
    auto *const line = new RemarkLine(this);
    line->setObjectName(QStringLiteral("editor.%1.%2").arg(m_schema.name, name));
    m_column->addWidget(line);
    return line;
}

void PropertyEditor::addBeside(QWidget *widget)
{
    m_row->addWidget(widget, 0, Qt::AlignTop);
}

bool PropertyEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->parent() == m_field && qobject_cast<QAbstractScrollArea *>(m_field))
        return event->type() == QEvent::ContextMenu && showContextMenu(m_field, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        return filterKey(event);
    case QEvent::ContextMenu:
        return showContextMenu(qobject_cast<QWidget *>(watched), event);
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
            leave();
            Q_EMIT left();
        }
        return false;
    case QEvent::Wheel:
        // It scrolls the panel; values are not changed in passing.
        event->ignore();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void PropertyEditor::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_field)
        refresh();
}

/// Undo belongs to the document and not to the field, whatever the window does with these keys.
bool PropertyEditor::filterKey(QEvent *event)
{
    auto *const key = static_cast<QKeyEvent *>(event);
    const bool pressed = event->type() == QEvent::KeyPress;
    if (key->matches(QKeySequence::Undo)) {
        event->accept();
        if (pressed)
            Q_EMIT undoWanted();
        return true;
    }
    if (key->matches(QKeySequence::Redo)) {
        event->accept();
        if (pressed)
            Q_EMIT redoWanted();
        return true;
    }
    const bool opens = key->key() == Qt::Key_Down && key->modifiers() == Qt::AltModifier;
    if (opens && pressed)
        openMenu();
    return false;
}

bool PropertyEditor::showContextMenu(QWidget *field, QEvent *event)
{
    QMenu *const menu = standardMenu(field);
    if (!menu)
        return false;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QUndoStack &stack = m_document.undoStack();
    const auto redirect = [this, menu](const QString &name, bool enabled, auto signal) {
        auto *const action = menu->findChild<QAction *>(name);
        if (!action)
            return;
        action->disconnect();
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, signal);
    };
    redirect(QStringLiteral("edit-undo"), stack.canUndo(), &PropertyEditor::undoWanted);
    redirect(QStringLiteral("edit-redo"), stack.canRedo(), &PropertyEditor::redoWanted);
    menu->popup(static_cast<QContextMenuEvent *>(event)->globalPos());
    return true;
}
