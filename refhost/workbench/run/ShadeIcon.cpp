#include "refhost/workbench/run/ShadeIcon.h"

#include "refhost/workbench/run/ShadeIconEngine.h"

QIcon shadeIcon(const QIcon &icon, const QColor &color)
{
    return QIcon(new ShadeIconEngine(icon, color));
}
