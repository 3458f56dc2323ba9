#pragma once

#include "refhost/workbench/look/PaintedIconEngine.h"

#include <QSvgRenderer>

#include <memory>

/// Draws the SVG resource of an operation, or else a tile with the first letter of its name.
class OperationIconEngine : public PaintedIconEngine
{
public:
    OperationIconEngine(const QString &path, const QString &name);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    std::shared_ptr<QSvgRenderer> m_renderer; ///< null when there is nothing to draw
    QString m_letter;
};
