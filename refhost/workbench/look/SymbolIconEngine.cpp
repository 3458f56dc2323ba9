#include "refhost/workbench/look/SymbolIconEngine.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

QColor symbolColor(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled)
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    if (mode == QIcon::Selected)
        return palette.color(QPalette::HighlightedText);
    return palette.color(QPalette::ButtonText);
}

} // namespace

SymbolIconEngine::SymbolIconEngine(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        m_svg = file.readAll();
}

void SymbolIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                             QIcon::State state)
{
    Q_UNUSED(state)
    if (m_svg.isEmpty())
        return;
    QByteArray svg = m_svg;
    svg.replace("currentColor", symbolColor(mode).name().toLatin1());
    QSvgRenderer(svg).render(painter, rect);
}

QPixmap SymbolIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
}

QIconEngine *SymbolIconEngine::clone() const
{
    return new SymbolIconEngine(*this);
}
