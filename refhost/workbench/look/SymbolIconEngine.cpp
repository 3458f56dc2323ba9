#include "refhost/workbench/look/SymbolIconEngine.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

SymbolIconEngine::SymbolIconEngine(const QString &path, const QColor &color)
    : m_color(color)
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
    svg.replace("currentColor", colorFor(mode).name().toLatin1());
    QSvgRenderer(svg).render(painter, rect);
}

QIconEngine *SymbolIconEngine::clone() const
{
    return new SymbolIconEngine(*this);
}

QColor SymbolIconEngine::colorFor(QIcon::Mode mode) const
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled)
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    if (mode == QIcon::Selected)
        return palette.color(QPalette::HighlightedText);
    return m_color.isValid() ? m_color : palette.color(QPalette::ButtonText);
}
