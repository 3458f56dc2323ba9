#include "refhost/workbench/window/EditActions.h"

#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/look/SymbolIcon.h"

EditActions::EditActions(TaskDocument &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_undo(new QAction(symbolIcon(QStringLiteral("undo")), {}, this))
    , m_redo(new QAction(symbolIcon(QStringLiteral("redo")), {}, this))
{
    m_undo->setObjectName(QStringLiteral("edit.undo"));
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo->setObjectName(QStringLiteral("edit.redo"));
    m_redo->setShortcuts(
        {QKeySequence(QKeySequence::Redo), QKeySequence(int(Qt::CTRL) + Qt::Key_Y)});
    connect(m_undo, &QAction::triggered, &document, &TaskDocument::undo);
    connect(m_redo, &QAction::triggered, &document, &TaskDocument::redo);
    connect(&document.undoStack(), &QUndoStack::indexChanged, this, &EditActions::follow);
    follow();
}

void EditActions::follow()
{
    const QUndoStack &stack = m_document.undoStack();
    m_undo->setEnabled(stack.canUndo());
    m_redo->setEnabled(stack.canRedo());
    m_undo->setText(stack.canUndo() ? tr("撤销“%1”(&U)").arg(stack.undoText()) : tr("撤销(&U)"));
    m_redo->setText(stack.canRedo() ? tr("重做“%1”(&R)").arg(stack.redoText()) : tr("重做(&R)"));
    m_undo->setIconText(tr("撤销"));
    m_redo->setIconText(tr("重做"));
}
