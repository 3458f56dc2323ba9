#include "refhost/workbench/variables/RefusalBubble.h"

#include "refhost/workbench/look/Shades.h"

#include <QEvent>
#include <QPalette>

namespace {

constexpr int columns = 36; ///< of text, in widths of "x"

} // namespace

RefusalBubble::RefusalBubble(QWidget *editor)
    : QLabel(editor->window())
    , m_editor(editor)
{
    setObjectName(QStringLiteral("refusal"));
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setFrameShape(QFrame::Box);
    setMargin(fontMetrics().height() / 4);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::NoFocus);
    QPalette colors = editor->palette();
    colors.setColor(QPalette::Window, colors.color(QPalette::Base));
    colors.setColor(QPalette::WindowText, Shades::of(colors).error);
    setPalette(colors);
    editor->installEventFilter(this);
    connect(editor, &QObject::destroyed, this, &QObject::deleteLater);
    hide();
}

void RefusalBubble::tell(const QString &text)
{
    setText(text);
    place();
    raise();
    show();
}

bool RefusalBubble::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_editor && event->type() == QEvent::Hide)
        hide();
    if (watched == m_editor && event->type() == QEvent::Move && isVisible())
        place();
    return QLabel::eventFilter(watched, event);
}

void RefusalBubble::place()
{
    const QWidget *const ground = parentWidget();
    const int width =
        qMin(ground->width(), fontMetrics().horizontalAdvance(QLatin1Char('x')) * (columns + 2));
    const int natural = fontMetrics().horizontalAdvance(text()) + 2 * (margin() + frameWidth()) + 2;
    const int used = qMin(width, natural);
    resize(used, heightForWidth(used));
    const QPoint below = m_editor->mapTo(ground, QPoint(0, m_editor->height()));
    const bool fits = below.y() + height() <= ground->height();
    const int y = fits ? below.y() : m_editor->mapTo(ground, QPoint()).y() - height();
    move(qBound(0, below.x(), qMax(0, ground->width() - width)), qMax(0, y));
}
