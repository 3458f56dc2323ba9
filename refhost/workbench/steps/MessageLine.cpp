#include "refhost/workbench/steps/MessageLine.h"

#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/look/SymbolPixmap.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

MessageLine::MessageLine(QWidget *parent)
    : QFrame(parent)
    , m_symbol(new QLabel(this))
    , m_text(new QLabel(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setFocusPolicy(Qt::ClickFocus);
    auto *const close = new QToolButton(this);
    close->setIcon(symbolIcon(QStringLiteral("close")));
    close->setAutoRaise(true);
    close->setToolTip(tr("关闭"));
    close->setAccessibleName(tr("关闭"));
    connect(close, &QToolButton::clicked, this, &MessageLine::dismiss);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(fontMetrics().height() / 2, fontMetrics().height() / 4,
                               fontMetrics().height() / 4, fontMetrics().height() / 4);
    layout->addWidget(m_symbol, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    layout->addWidget(close, 0, Qt::AlignTop);
    takeColors();
    hide();
}

void MessageLine::tell(const QString &text)
{
    m_text->setText(text);
    show();
}

void MessageLine::dismiss()
{
    hide();
    m_text->clear();
}

void MessageLine::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
}

void MessageLine::takeColors()
{
    m_symbol->setPixmap(symbolPixmap(QStringLiteral("warning"), Shades::of(palette()).warning,
                                     fontMetrics().height() * 5 / 4, devicePixelRatioF()));
}
