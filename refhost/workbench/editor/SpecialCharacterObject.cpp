#include "refhost/workbench/editor/SpecialCharacterObject.h"

#include "refhost/workbench/look/Shades.h"
#include "refhost/workbench/values/InvisibleCharacter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QWidget>

namespace {

constexpr int characterProperty = QTextFormat::UserProperty + 1;
constexpr double markScale = 0.72;

} // namespace

SpecialCharacterObject::SpecialCharacterObject(QWidget *editor)
    : QObject(editor)
    , m_editor(editor)
{
}

QTextCharFormat SpecialCharacterObject::formatOf(const QString &character)
{
    QTextCharFormat format;
    format.setObjectType(Type);
    format.setProperty(characterProperty, character);
    return format;
}

QString SpecialCharacterObject::characterOf(const QTextFormat &format)
{
    return format.objectType() == Type ? format.property(characterProperty).toString() : QString();
}

QSizeF SpecialCharacterObject::intrinsicSize(QTextDocument *document, int position,
                                             const QTextFormat &format)
{
    Q_UNUSED(document)
    Q_UNUSED(position)
    const QFontMetricsF metrics(markFont());
    const QString mark = invisibleSign(characterOf(format));
    return {metrics.horizontalAdvance(mark) + metrics.averageCharWidth() * 1.5,
            QFontMetricsF(m_editor->font()).ascent()};
}

void SpecialCharacterObject::drawObject(QPainter *painter, const QRectF &rect,
                                        QTextDocument *document, int position,
                                        const QTextFormat &format)
{
    Q_UNUSED(document)
    Q_UNUSED(position)
    const bool selected = format.hasProperty(QTextFormat::BackgroundBrush);
    const QPalette palette = m_editor->palette();
    const QColor color =
        selected ? palette.color(QPalette::HighlightedText) : Shades::of(palette).invisible;
    const double gap = QFontMetricsF(markFont()).averageCharWidth() / 4;
    const QRectF frame = rect.adjusted(gap, rect.height() / 8, -gap, 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setFont(markFont());
    painter->setPen(color);
    painter->drawRoundedRect(frame, gap * 2, gap * 2);
    painter->drawText(frame, Qt::AlignCenter, invisibleSign(characterOf(format)));
    painter->restore();
}

QFont SpecialCharacterObject::markFont() const
{
    QFont font = m_editor->font();
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * markScale);
    else
        font.setPixelSize(qMax(1, qRound(font.pixelSize() * markScale)));
    return font;
}
