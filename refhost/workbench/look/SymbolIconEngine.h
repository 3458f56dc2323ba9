#pragma once

#include "refhost/workbench/look/PaintedIconEngine.h"

#include <QByteArray>
#include <QColor>

/// Draws an SVG whose drawing is in "currentColor" in a colour with a meaning, or without one in
/// that which the palette has for text at the moment. Where it is selected, in that of selected
/// text.
class SymbolIconEngine : public PaintedIconEngine
{
public:
    explicit SymbolIconEngine(const QString &path, const QColor &color = {});

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    QColor colorFor(QIcon::Mode mode) const;

    QByteArray m_svg;
    QColor m_color; ///< invalid for that of text
};
