#include "refhost/workbench/editor/ExactTextEdit.h"

#include "refhost/workbench/editor/ExactText.h"
#include "refhost/workbench/editor/InvisibleMarks.h"
#include "refhost/workbench/editor/SpecialCharacterObject.h"
#include "refhost/workbench/values/InvisibleCharacter.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QTextLayout>
#include <QtMath>

namespace {

constexpr int mostLines = 5;

/// The units themselves, since the clipboard of a system may change line ends and more.
QString exactFormat()
{
    return QStringLiteral("application/x-operation-text-utf16");
}

QString textIn(const QMimeData &source)
{
    if (!source.hasFormat(exactFormat()))
        return source.text();
    const QByteArray bytes = source.data(exactFormat());
    QString text(bytes.size() / int(sizeof(QChar)), Qt::Uninitialized);
    memcpy(text.data(), bytes.constData(), size_t(text.size()) * sizeof(QChar));
    return text;
}

QByteArray bytesOf(const QString &text)
{
    return {reinterpret_cast<const char *>(text.constData()), text.size() * int(sizeof(QChar))};
}

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// The height of a line as a document lays it out, which is not always the spacing of the font: a
/// field with one line would become another height when its document is laid out, after the layouts
/// around it.
double lineHeight(const QFont &font, QPaintDevice *device)
{
    QTextLayout layout(QStringLiteral("x"), font, device);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLeadingIncluded(true);
    layout.endLayout();
    return line.height();
}

bool hasSpecial(const QString &text)
{
    for (int i = 0; i < text.size(); i += text.at(i).isHighSurrogate() ? 2 : 1) {
        if (invisibleSize(text, i) > 0)
            return true;
    }
    return false;
}

} // namespace

ExactTextEdit::ExactTextEdit(QWidget *parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A document rounds the places of its lines, so the margin is whole.
    document()->setDocumentMargin(qCeil(fontMetrics().averageCharWidth() / 2.0));
    QAbstractTextDocumentLayout *const layout = document()->documentLayout();
    layout->registerHandler(SpecialCharacterObject::Type, new SpecialCharacterObject(this));
    connect(layout, &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &ExactTextEdit::fitHeight);
    connect(this, &QTextEdit::textChanged, this, [this] {
        if (!m_setting)
            Q_EMIT textEdited();
    });
    fitHeight();
}

QString ExactTextEdit::text() const
{
    return exactText(*document());
}

void ExactTextEdit::setText(const QString &text)
{
    if (text == this->text())
        return;
    const QScopedValueRollback<bool> setting(m_setting, true);
    setExactText(*document(), text);
    if (!hasFocus())
        moveCursor(QTextCursor::Start);
}

void ExactTextEdit::insertText(const QString &text)
{
    if (isReadOnly())
        return;
    QTextCursor cursor = textCursor();
    if (m_mostUnits >= 0 && text.size() > m_mostUnits - document()->characterCount()) {
        const int end = document()->characterCount() - 1;
        Q_EMIT oversized(exactText(*document(), 0, cursor.selectionStart()) + text +
                         exactText(*document(), cursor.selectionEnd(), end));
        return;
    }
    insertExactText(cursor, text);
    setTextCursor(cursor);
    ensureCursorVisible();
}

void ExactTextEdit::setLocked(bool locked)
{
    setReadOnly(locked);
    viewport()->setBackgroundRole(locked ? QPalette::Window : QPalette::Base);
}

void ExactTextEdit::setLabelLike()
{
    setFrameStyle(NoFrame);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setFocusPolicy(Qt::ClickFocus);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    fitHeight();
}

QSize ExactTextEdit::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 30, height()};
}

QSize ExactTextEdit::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 6, height()};
}

bool ExactTextEdit::event(QEvent *event)
{
    if (event->type() == QEvent::Paint && !isFrameless()) {
        paintFrame();
        return true;
    }
    const bool focuses = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    const bool done = QTextEdit::event(event);
    if (focuses)
        update();
    return done;
}

void ExactTextEdit::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitHeight();
}

/// A file that is dragged in is the window's, not a text.
void ExactTextEdit::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->ignore();
    else
        QTextEdit::dragEnterEvent(event);
}

void ExactTextEdit::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event)) {
        const bool forLine = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
        if (!forLine)
            Q_EMIT entered();
        else if (m_lineFeedsAllowed)
            insertText(QStringLiteral("\n"));
        event->accept();
        return;
    }
    const QString typed = event->text();
    const bool isControl = !typed.isEmpty() && typed.at(0).category() == QChar::Other_Control;
    if (!isControl && hasSpecial(typed))
        insertText(typed);
    else
        QTextEdit::keyPressEvent(event);
}

void ExactTextEdit::inputMethodEvent(QInputMethodEvent *event)
{
    const QString committed = event->commitString();
    if (!hasSpecial(committed)) {
        QTextEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent rest(event->preeditString(), event->attributes());
    QTextEdit::inputMethodEvent(&rest);
    insertText(committed);
    event->accept();
}

void ExactTextEdit::paintEvent(QPaintEvent *event)
{
    QTextEdit::paintEvent(event);
    QPainter painter(viewport());
    painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
    const QRect seen = viewport()->rect().translated(0, verticalScrollBar()->value());
    paintInvisibleMarks(painter, *document(), palette(), seen);
}

void ExactTextEdit::resizeEvent(QResizeEvent *event)
{
    QTextEdit::resizeEvent(event);
    fitHeight();
}

bool ExactTextEdit::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText() || source->hasFormat(exactFormat());
}

QMimeData *ExactTextEdit::createMimeDataFromSelection() const
{
    const QTextCursor cursor = textCursor();
    const QString selected = exactText(*document(), cursor.selectionStart(), cursor.selectionEnd());
    auto *const mimeData = new QMimeData;
    mimeData->setText(selected);
    mimeData->setData(exactFormat(), bytesOf(selected));
    return mimeData;
}

void ExactTextEdit::insertFromMimeData(const QMimeData *source)
{
    insertText(textIn(*source));
}

/// Keeps the height at that of the text, up to the most lines; only beyond them there is a scroll
/// bar. Before the first layout of the document it is that of one line.
void ExactTextEdit::fitHeight()
{
    const int whole = qCeil(document()->size().height()) + 2 * frameWidth();
    const int most = isFrameless() ? QWIDGETSIZE_MAX : heightOf(mostLines);
    setVerticalScrollBarPolicy(whole > most ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setFixedHeight(qBound(heightOf(1), whole, most));
    updateGeometry();
}

int ExactTextEdit::heightOf(int lines) const
{
    return qCeil(lines * lineHeight(font(), viewport()) + 2 * document()->documentMargin()) +
           2 * frameWidth();
}

/// The frame of a line edit, which tells where the focus is.
void ExactTextEdit::paintFrame()
{
    QStylePainter painter(this);
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = frameWidth();
    option.state |= QStyle::State_Sunken;
    painter.drawPrimitive(QStyle::PE_FrameLineEdit, option);
}
