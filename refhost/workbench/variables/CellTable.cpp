#include "refhost/workbench/variables/CellTable.h"

#include "refhost/workbench/variables/CellDelegate.h"
#include "refhost/workbench/variables/CellEdit.h"
#include "refhost/workbench/variables/CellRules.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>

CellTable::CellTable(QWidget *parent)
    : QTableView(parent)
{
    setItemDelegate(new CellDelegate(this));
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    setWordWrap(false);
    // Each row of the same height, so that the number of rows costs nothing.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    fitRows();
}

void CellTable::setRules(QAbstractItemModel *model, const CellRules *rules)
{
    m_rules = rules;
    setModel(model);
}

bool CellTable::commitEditing()
{
    const auto boxes = viewport()->findChildren<QComboBox *>();
    for (QComboBox *const box : boxes) {
        commitData(box);
        closeEditor(box, QAbstractItemDelegate::NoHint);
    }
    const auto editors = viewport()->findChildren<CellEdit *>();
    for (CellEdit *const editor : editors) {
        commitData(editor);
        if (!refusalOf(editor).isEmpty())
            return false;
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
    return true;
}

void CellTable::begin(const QModelIndex &cell)
{
    setCurrentIndex(cell);
    edit(cell, EditKeyPressed, nullptr);
}

bool CellTable::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (!index.data(OpensRole).toBool())
        return QTableView::edit(index, trigger, event);
    if (trigger & (DoubleClicked | EditKeyPressed))
        Q_EMIT openWanted(index);
    return false;
}

void CellTable::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers() == Qt::NoModifier && state() != EditingState)
        edit(currentIndex(), EditKeyPressed, event);
    else
        QTableView::keyPressEvent(event);
}

void CellTable::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitRows();
}

void CellTable::commitData(QWidget *editor)
{
    auto *const line = qobject_cast<CellEdit *>(editor);
    const QString refusal = refusalOf(line);
    if (refusal.isEmpty())
        QTableView::commitData(editor);
    else
        line->refuse(refusal);
}

void CellTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool isGivenUp = hint == QAbstractItemDelegate::RevertModelCache;
    if (isGivenUp || refusalOf(qobject_cast<CellEdit *>(editor)).isEmpty())
        QTableView::closeEditor(editor, hint);
}

QString CellTable::refusalOf(const CellEdit *editor) const
{
    if (!editor || !editor->isChanged() || !editor->cell().isValid() || !m_rules)
        return {};
    return m_rules->refusal(editor->cell(), editor->text());
}

void CellTable::fitRows()
{
    verticalHeader()->setMinimumSectionSize(fontMetrics().height());
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 7 / 4);
}
