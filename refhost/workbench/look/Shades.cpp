#include "refhost/workbench/look/Shades.h"

#include <QPalette>
#include <QStyleOptionViewItem>

namespace {

const Shades onLight{QColor(0xb4, 0x23, 0x18), QColor(0xa1, 0x5c, 0x00), QColor(0x17, 0x5c, 0xd3),
                     QColor(0x0b, 0x5c, 0xad), QColor(0x66, 0x70, 0x85), QColor(0x98, 0xa2, 0xb3),
                     QColor(0xff, 0xf3, 0xc4), QColor(0xd9, 0xf2, 0xe1), QColor(0xd9, 0x2d, 0x20),
                     QColor(0xd0, 0xd5, 0xdd)};

const Shades onDark{QColor(0xff, 0x8a, 0x80), QColor(0xff, 0xc1, 0x5e), QColor(0x84, 0xb6, 0xff),
                    QColor(0x7c, 0xc4, 0xff), QColor(0x9a, 0xa4, 0xb2), QColor(0x6b, 0x75, 0x85),
                    QColor(0x4d, 0x43, 0x1a), QColor(0x1f, 0x45, 0x2f), QColor(0xff, 0x6b, 0x5e),
                    QColor(0x47, 0x4d, 0x57)};

} // namespace

Shades Shades::of(const QPalette &palette)
{
    return isDark(palette) ? onDark : onLight;
}

QColor Shades::quietIn(const QStyleOptionViewItem &item)
{
    if (!item.state.testFlag(QStyle::State_Selected))
        return of(item.palette).quiet;
    QColor color = item.palette.color(QPalette::HighlightedText);
    color.setAlphaF(0.8);
    return color;
}

bool isDark(const QPalette &palette)
{
    constexpr int middle = 128;
    return palette.color(QPalette::Base).lightness() < middle;
}
