#include "refhost/workbench/variables/CellEdit.h"

#include "refhost/workbench/variables/RefusalBubble.h"

namespace {

constexpr int longestText = 1 << 24;

} // namespace

CellEdit::CellEdit(const QModelIndex &cell, QWidget *parent)
    : QLineEdit(parent)
    , m_cell(cell)
{
    setObjectName(QStringLiteral("cell"));
    // The usual limit cuts what is pasted without a word.
    setMaxLength(longestText);
    setFrame(false);
    setAutoFillBackground(true);
}

void CellEdit::begin(const QString &text)
{
    if (m_hasBegun)
        return;
    m_hasBegun = true;
    m_first = text;
    setText(text);
    selectAll();
}

void CellEdit::refuse(const QString &reason)
{
    if (!m_bubble) {
        m_bubble = new RefusalBubble(this);
        connect(this, &QLineEdit::textChanged, m_bubble, &QWidget::hide);
    }
    m_bubble->tell(reason);
}
