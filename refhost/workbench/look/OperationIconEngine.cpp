#include "refhost/workbench/look/OperationIconEngine.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace {

void paintTile(QPainter &painter, const QRectF &rect, const QString &letter)
{
    const QPalette palette = QGuiApplication::palette();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Mid));
    painter.drawRoundedRect(rect, rect.width() / 8, rect.width() / 8);
    QFont font = QGuiApplication::font();
    font.setPixelSize(qMax(1, static_cast<int>(rect.height() / 2)));
    painter.setFont(font);
    painter.setPen(palette.color(QPalette::BrightText));
    painter.drawText(rect, Qt::AlignCenter, letter);
}

/// The first character, which may be a surrogate pair.
QString firstCharacter(const QString &text)
{
    return text.left(!text.isEmpty() && text.at(0).isHighSurrogate() ? 2 : 1);
}

} // namespace

OperationIconEngine::OperationIconEngine(const QString &path, const QString &name)
    : m_letter(firstCharacter(name))
{
    if (!QFile::exists(path))
        return;
    m_renderer = std::make_shared<QSvgRenderer>(path);
    if (!m_renderer->isValid())
        m_renderer.reset();
}

void OperationIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                                QIcon::State state)
{
    Q_UNUSED(state)
    painter->save();
    if (mode == QIcon::Disabled)
        painter->setOpacity(0.4);
    if (m_renderer)
        m_renderer->render(painter, rect);
    else
        paintTile(*painter, rect, m_letter);
    painter->restore();
}

QIconEngine *OperationIconEngine::clone() const
{
    return new OperationIconEngine(*this);
}
