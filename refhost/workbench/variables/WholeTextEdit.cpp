#include "refhost/workbench/variables/WholeTextEdit.h"

#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/values/VisibleText.h"
#include "refhost/workbench/variables/TextWalk.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>

namespace {

constexpr int delayMilliseconds = 120;
constexpr int longText = 1 << 20; ///< of which a division takes its time

/// A monospaced font in the size that the user has chosen for everything.
QFont fixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QFont usual = QGuiApplication::font();
    if (usual.pointSizeF() > 0)
        font.setPointSizeF(usual.pointSizeF());
    else
        font.setPixelSize(usual.pixelSize());
    return font;
}

bool isTyped(const QKeyEvent &event)
{
    const bool isCommand =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier;
    return !isCommand && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace

WholeTextEdit::WholeTextEdit(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    setFont(fixedFont());
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Always, so that a text that just fits does not get a bar that takes its room.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    m_division.setSingleShot(true);
    m_division.setInterval(delayMilliseconds);
    connect(&m_division, &QTimer::timeout, this, &WholeTextEdit::divide);
}

void WholeTextEdit::setText(const QString &text)
{
    m_text = text;
    m_history.clear();
    m_cursor = 0;
    m_anchor = 0;
    divide();
    Q_EMIT textChanged();
    Q_EMIT cursorMoved();
}

void WholeTextEdit::replaceText(const QString &text)
{
    replace(0, m_text.size(), text);
}

void WholeTextEdit::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    setAttribute(Qt::WA_InputMethodEnabled, !readOnly);
}

int WholeTextEdit::line() const
{
    return m_rows.lineAt(m_text, m_cursor);
}

int WholeTextEdit::column() const
{
    const int feed = m_cursor == 0 ? -1 : m_text.lastIndexOf(QLatin1Char('\n'), m_cursor - 1);
    return m_cursor - feed - 1;
}

void WholeTextEdit::setCursor(int position, bool keepAnchor)
{
    m_cursor = qBound(0, position, m_text.size());
    if (m_cursor > 0 && m_cursor < m_text.size() && m_text.at(m_cursor).isLowSurrogate() &&
        m_text.at(m_cursor - 1).isHighSurrogate())
        --m_cursor;
    if (!keepAnchor)
        m_anchor = m_cursor;
    showCursor();
    viewport()->update();
    Q_EMIT cursorMoved();
}

void WholeTextEdit::select(int position, int length)
{
    setCursor(position);
    setCursor(position + length, true);
}

QString WholeTextEdit::selectedText() const
{
    return m_text.mid(selectionStart(), selectionEnd() - selectionStart());
}

void WholeTextEdit::insert(const QString &text)
{
    if (!m_isReadOnly && (!text.isEmpty() || m_cursor != m_anchor))
        replace(selectionStart(), selectionEnd() - selectionStart(), text);
}

void WholeTextEdit::undo()
{
    if (const auto edit = m_history.undo())
        apply(*edit);
}

void WholeTextEdit::redo()
{
    if (const auto edit = m_history.redo())
        apply(*edit);
}

void WholeTextEdit::cut()
{
    copy();
    insert({});
}

void WholeTextEdit::copy()
{
    if (m_cursor != m_anchor)
        QGuiApplication::clipboard()->setText(selectedText());
}

void WholeTextEdit::paste()
{
    insert(QGuiApplication::clipboard()->text());
}

void WholeTextEdit::selectAll()
{
    m_anchor = 0;
    m_cursor = m_text.size();
    viewport()->update();
    Q_EMIT cursorMoved();
}

void WholeTextEdit::replace(int position, int length, const QString &inserted)
{
    const TextHistory::Edit edit{position, m_text.mid(position, length), inserted};
    m_history.add(edit);
    apply(edit);
}

void WholeTextEdit::apply(const TextHistory::Edit &edit)
{
    m_text.replace(edit.position, edit.removed.size(), edit.inserted);
    // The row before may take up what is at the beginning of this one now.
    m_rows.divide(m_text, m_widths, qMax(0, edit.position - m_widths.mostUnits()));
    updateScrollBar();
    Q_EMIT textChanged();
    setCursor(edit.position + edit.inserted.size());
}

void WholeTextEdit::erase(int from, int to)
{
    if (m_cursor != m_anchor)
        insert({});
    else if (from < to)
        replace(from, to - from, {});
}

bool WholeTextEdit::event(QEvent *event)
{
    // These keys are typed here, whatever else the window does with them.
    if (event->type() == QEvent::ShortcutOverride) {
        auto *const key = static_cast<QKeyEvent *>(event);
        for (const auto known :
             {QKeySequence::Copy, QKeySequence::Cut, QKeySequence::Paste, QKeySequence::Undo,
              QKeySequence::Redo, QKeySequence::SelectAll, QKeySequence::Delete}) {
            if (key->matches(known))
                key->accept();
        }
        if (isTyped(*key))
            key->accept();
    }
    if (event->type() == QEvent::KeyPress) {
        auto *const key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Tab && key->modifiers() == Qt::NoModifier && !m_isReadOnly) {
            insert(QStringLiteral("\t"));
            return true;
        }
        if (key->key() == Qt::Key_Tab && key->modifiers() == Qt::ControlModifier)
            return focusNextPrevChild(true);
    }
    return QAbstractScrollArea::event(event);
}

void WholeTextEdit::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    const int first = verticalScrollBar()->value();
    const int last = qMin(first + visibleRows() + 1, m_rows.count() - 1);
    const int margin = fontMetrics().averageCharWidth();
    int start = m_rows.start(m_text, first);
    for (int row = first; row <= last; ++row) {
        const int end = m_rows.end(m_text, start);
        QTextLayout layout;
        layOut(layout, start, end);
        const QPointF origin(margin, (row - first) * rowHeight());
        layout.draw(&painter, origin, selectionIn(start, end));
        const bool isLast = row == m_rows.count() - 1;
        if (m_cursor >= start && (m_cursor < end || isLast) && hasFocus())
            layout.drawCursor(&painter, origin, m_cursor - start + m_preedit.size(),
                              qMax(1, fontMetrics().averageCharWidth() / 6));
        start = end;
    }
}

void WholeTextEdit::layOut(QTextLayout &layout, int start, int end) const
{
    const QString shown = visibleUnits(QStringView(m_text).mid(start, end - start));
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    // A bidirectional order would not be that of the positions.
    option.setTextDirection(Qt::LeftToRight);
    layout.setFont(font());
    layout.setText(shown);
    layout.setTextOption(option);
    layout.setFormats(formats(shown, start));
    if (!m_preedit.isEmpty() && m_cursor >= start && m_cursor <= end)
        layout.setPreeditArea(m_cursor - start, m_preedit);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid()) {
        line.setLineWidth(viewport()->width() * 2);
        line.setPosition(QPointF(0, (rowHeight() - line.height()) / 2));
    }
    layout.endLayout();
}

/// The signs in the place of what cannot be seen, in a colour of their own.
QVector<QTextLayout::FormatRange> WholeTextEdit::formats(const QString &shown, int start) const
{
    QVector<QTextLayout::FormatRange> ranges;
    QTextCharFormat quiet;
    quiet.setForeground(Shades::of(palette()).invisible);
    for (int i = 0; i < shown.size(); ++i) {
        if (shown.at(i) != m_text.at(start + i))
            ranges.append({i, 1, quiet});
    }
    QTextCharFormat composed;
    composed.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    if (!m_preedit.isEmpty() && m_cursor >= start && m_cursor <= start + shown.size())
        ranges.append({m_cursor - start, m_preedit.size(), composed});
    return ranges;
}

QVector<QTextLayout::FormatRange> WholeTextEdit::selectionIn(int start, int end) const
{
    const int from = qMax(start, selectionStart());
    const int to = qMin(end, selectionEnd());
    if (from >= to)
        return {};
    QTextCharFormat selected;
    selected.setBackground(palette().brush(QPalette::Highlight));
    selected.setForeground(palette().brush(QPalette::HighlightedText));
    return {{from - start, to - from, selected}};
}

void WholeTextEdit::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (widths() == m_widths)
        updateScrollBar();
    else if (m_text.size() < longText)
        divide();
    else
        m_division.start();
}

void WholeTextEdit::keyPressEvent(QKeyEvent *event)
{
    if (handleShortcut(event) || handleMove(event) || (!m_isReadOnly && handleErasure(event)))
        return;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!m_isReadOnly && isEnter && !(event->modifiers() & Qt::ControlModifier))
        insert(QStringLiteral("\n"));
    else if (!m_isReadOnly && isTyped(*event))
        insert(event->text());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

bool WholeTextEdit::handleShortcut(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else
        return !m_isReadOnly && handleEditShortcut(event);
    return true;
}

bool WholeTextEdit::handleEditShortcut(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cut))
        cut();
    else if (event->matches(QKeySequence::Paste))
        paste();
    else if (event->matches(QKeySequence::Undo))
        undo();
    else if (event->matches(QKeySequence::Redo))
        redo();
    else
        return false;
    return true;
}

bool WholeTextEdit::handleMove(QKeyEvent *event)
{
    const bool byWord = event->modifiers() & Qt::ControlModifier;
    const int row = m_rows.rowAt(m_text, m_cursor);
    const int start = m_rows.start(m_text, row);
    const int end = m_rows.end(m_text, start);
    int target = 0;
    switch (event->key()) {
    case Qt::Key_Left:
        target = byWord ? previousWord(m_text, m_cursor) : previousPosition(m_text, m_cursor);
        break;
    case Qt::Key_Right:
        target = byWord ? nextWord(m_text, m_cursor) : nextPosition(m_text, m_cursor);
        break;
    case Qt::Key_Up:
        target = vertical(-1);
        break;
    case Qt::Key_Down:
        target = vertical(1);
        break;
    case Qt::Key_PageUp:
        target = vertical(-visibleRows());
        break;
    case Qt::Key_PageDown:
        target = vertical(visibleRows());
        break;
    case Qt::Key_Home:
        target = byWord ? 0 : start;
        break;
    case Qt::Key_End:
        target = byWord ? m_text.size()
                        : (row == m_rows.count() - 1 ? end : previousPosition(m_text, end));
        break;
    default:
        return false;
    }
    setCursor(target, event->modifiers() & Qt::ShiftModifier);
    return true;
}

bool WholeTextEdit::handleErasure(QKeyEvent *event)
{
    const bool byWord = event->modifiers() & Qt::ControlModifier;
    if (event->key() == Qt::Key_Backspace) {
        erase(byWord ? previousWord(m_text, m_cursor) : previousPosition(m_text, m_cursor),
              m_cursor);
    } else if (event->key() == Qt::Key_Delete) {
        erase(m_cursor, byWord ? nextWord(m_text, m_cursor) : nextPosition(m_text, m_cursor));
    } else {
        return false;
    }
    return true;
}

/// The position that many rows below the cursor, at the same place across.
int WholeTextEdit::vertical(int rows) const
{
    const int row = m_rows.rowAt(m_text, m_cursor);
    const int target = qBound(0, row + rows, m_rows.count() - 1);
    const int y = (target - verticalScrollBar()->value()) * rowHeight() + rowHeight() / 2;
    return positionAt({cursorX(), y});
}

int WholeTextEdit::positionAt(const QPoint &point) const
{
    const int offset = point.y() < 0 ? -1 - (-point.y() / rowHeight()) : point.y() / rowHeight();
    const int row = qBound(0, verticalScrollBar()->value() + offset, m_rows.count() - 1);
    const int start = m_rows.start(m_text, row);
    const int end = m_rows.end(m_text, start);
    QTextLayout layout;
    layOut(layout, start, end);
    if (!layout.lineAt(0).isValid())
        return start;
    const int position =
        start + layout.lineAt(0).xToCursor(point.x() - fontMetrics().averageCharWidth());
    // Behind the last character of a row that goes on is the beginning of the next.
    const bool isSeam = position >= end && row < m_rows.count() - 1;
    return isSeam ? previousPosition(m_text, end) : qMin(position, end);
}

void WholeTextEdit::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        setCursor(positionAt(event->pos()), event->modifiers() & Qt::ShiftModifier);
}

void WholeTextEdit::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons() & Qt::LeftButton)
        setCursor(positionAt(event->pos()), true);
}

void WholeTextEdit::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int position = positionAt(event->pos());
    const int start = wordStart(m_text, position);
    select(start, wordEnd(m_text, position) - start);
}

void WholeTextEdit::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu;
    QAction *const cutAction =
        menu.addAction(symbolIcon(QStringLiteral("cut")), tr("剪切(&T)"), this, [this] { cut(); });
    QAction *const copyAction = menu.addAction(symbolIcon(QStringLiteral("copy")), tr("复制(&C)"),
                                               this, [this] { copy(); });
    QAction *const pasteAction = menu.addAction(symbolIcon(QStringLiteral("paste")), tr("粘贴(&P)"),
                                                this, [this] { paste(); });
    menu.addSeparator();
    menu.addAction(tr("全选(&A)"), this, [this] { selectAll(); });
    cutAction->setEnabled(!m_isReadOnly && m_cursor != m_anchor);
    copyAction->setEnabled(m_cursor != m_anchor);
    pasteAction->setEnabled(!m_isReadOnly);
    menu.exec(event->globalPos());
}

void WholeTextEdit::inputMethodEvent(QInputMethodEvent *event)
{
    m_preedit = m_isReadOnly ? QString() : event->preeditString();
    if (!m_isReadOnly && !event->commitString().isEmpty())
        insert(event->commitString());
    viewport()->update();
    event->accept();
}

QVariant WholeTextEdit::inputMethodQuery(Qt::InputMethodQuery query) const
{
    switch (query) {
    case Qt::ImEnabled:
        return !m_isReadOnly;
    case Qt::ImCursorRectangle:
        return cursorRect();
    case Qt::ImFont:
        return font();
    default:
        return QAbstractScrollArea::inputMethodQuery(query);
    }
}

/// Where the cursor stands across, in pixels.
int WholeTextEdit::cursorX() const
{
    const int start = m_rows.start(m_text, m_rows.rowAt(m_text, m_cursor));
    QTextLayout layout;
    layOut(layout, start, m_rows.end(m_text, start));
    const QTextLine line = layout.lineAt(0);
    const qreal x = line.isValid() ? line.cursorToX(m_cursor - start) : 0;
    return fontMetrics().averageCharWidth() + qRound(x);
}

QRect WholeTextEdit::cursorRect() const
{
    const int row = m_rows.rowAt(m_text, m_cursor);
    return {cursorX(), (row - verticalScrollBar()->value()) * rowHeight(), 1, rowHeight()};
}

void WholeTextEdit::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void WholeTextEdit::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void WholeTextEdit::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        divide();
}

int WholeTextEdit::rowHeight() const
{
    // Room for the taller fonts that stand in for what the fixed one does not have.
    return qMax(1, fontMetrics().height() * 5 / 4);
}

int WholeTextEdit::visibleRows() const
{
    return qMax(1, viewport()->height() / rowHeight());
}

TextRows::Widths WholeTextEdit::widths() const
{
    const int narrow = qMax(1, fontMetrics().averageCharWidth());
    const int wide = qMax(narrow, fontMetrics().horizontalAdvance(QChar(0x4e2d)));
    // With some room for characters that are wider still.
    return {qMax(8 * wide, viewport()->width() - 4 * narrow), narrow, wide};
}

void WholeTextEdit::divide()
{
    m_division.stop();
    m_widths = widths();
    m_rows.divide(m_text, m_widths);
    updateScrollBar();
    showCursor();
    viewport()->update();
}

void WholeTextEdit::updateScrollBar()
{
    verticalScrollBar()->setPageStep(visibleRows());
    verticalScrollBar()->setRange(0, qMax(0, m_rows.count() - visibleRows()));
}

void WholeTextEdit::showCursor()
{
    const int row = m_rows.rowAt(m_text, m_cursor);
    QScrollBar *const bar = verticalScrollBar();
    if (row < bar->value())
        bar->setValue(row);
    else if (row >= bar->value() + visibleRows())
        bar->setValue(row - visibleRows() + 1);
    updateMicroFocus();
}
