#pragma once

#include <QByteArray>
#include <QIconEngine>

/// Draws an SVG whose drawing is in "currentColor" in the colour that the palette has for text at
/// the moment.
class SymbolIconEngine : public QIconEngine
{
public:
    explicit SymbolIconEngine(const QString &path);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    QByteArray m_svg;
};
