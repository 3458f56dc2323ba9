#include "refhost/workbench/editor/InvisibleMarks.h"

#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/values/InvisibleCharacter.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

namespace {

/// Whether there is no plain character at `index` of a line.
bool isGap(const QString &line, int index)
{
    if (index < 0 || index >= line.size())
        return true;
    return line.at(index).isSpace() || line.at(index) == QChar(QChar::ObjectReplacementCharacter);
}

bool isOverlooked(const QString &line, int index)
{
    return line.at(index) == QLatin1Char(' ') && (isGap(line, index - 1) || isGap(line, index + 1));
}

void paintSpaces(QPainter &painter, const QString &text, const QTextLine &line,
                 const QPointF &origin)
{
    const double radius = qMax(0.8, line.height() / 18);
    const double middle = origin.y() + line.y() + line.ascent() * 0.68;
    const int end = qMin(line.textStart() + line.textLength(), text.size());
    for (int i = line.textStart(); i < end; ++i) {
        if (!isOverlooked(text, i))
            continue;
        const double x = (line.cursorToX(i) + line.cursorToX(i + 1)) / 2;
        painter.drawEllipse(QPointF(origin.x() + x, middle), radius, radius);
    }
}

void paintLineFeed(QPainter &painter, const QTextBlock &block, const QTextLine &line,
                   const QPointF &origin)
{
    if (!block.next().isValid() || !line.isValid())
        return;
    const double x = line.cursorToX(line.textStart() + line.textLength());
    painter.drawText(
        QPointF(origin.x() + x + line.height() / 8, origin.y() + line.y() + line.ascent()),
        invisibleSign(QStringLiteral("\n")));
}

void paintBlock(QPainter &painter, const QTextBlock &block, const QPointF &origin,
                const QRect &seen)
{
    const QTextLayout &layout = *block.layout();
    const QString text = block.text();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        if (origin.y() + line.y() > seen.bottom())
            return;
        if (origin.y() + line.y() + line.height() < seen.top())
            continue;
        painter.setPen(Qt::NoPen);
        paintSpaces(painter, text, line, origin);
        painter.setPen(painter.brush().color());
        if (i + 1 == layout.lineCount())
            paintLineFeed(painter, block, line, origin);
    }
}

} // namespace

void paintInvisibleMarks(QPainter &painter, const QTextDocument &document, const QPalette &palette,
                         const QRect &seen)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(document.defaultFont());
    painter.setBrush(Shades::of(palette).invisible);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QRectF rect = document.documentLayout()->blockBoundingRect(block);
        if (rect.top() > seen.bottom())
            return;
        if (rect.bottom() >= seen.top())
            paintBlock(painter, block, block.layout()->position(), seen);
    }
}
