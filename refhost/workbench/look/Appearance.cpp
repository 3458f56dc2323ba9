#include "refhost/workbench/look/Appearance.h"

#include "refhost/workbench/look/WindowStyle.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace {

struct Colors
{
    QColor window;
    QColor base;
    QColor alternate;
    QColor button;
    QColor text;
    QColor disabled;
    QColor highlight;
    QColor elsewhere; ///< highlight where the focus is not
    QColor mid;
};

const Colors lightColors{
    QColor(0xf5, 0xf6, 0xf8), QColor(0xff, 0xff, 0xff), QColor(0xf9, 0xfa, 0xfb),
    QColor(0xf2, 0xf4, 0xf7), QColor(0x1d, 0x29, 0x39), QColor(0x98, 0xa2, 0xb3),
    QColor(0x15, 0x70, 0xef), QColor(0x6a, 0x80, 0xa0), QColor(0x98, 0xa2, 0xb3)};

const Colors darkColors{
    QColor(0x2b, 0x2f, 0x36), QColor(0x1b, 0x1e, 0x23), QColor(0x21, 0x25, 0x2b),
    QColor(0x39, 0x3f, 0x48), QColor(0xe4, 0xe7, 0xec), QColor(0x6b, 0x75, 0x85),
    QColor(0x2e, 0x6f, 0xd8), QColor(0x46, 0x58, 0x74), QColor(0x66, 0x70, 0x85)};

QPalette paletteOf(const Colors &colors)
{
    QPalette palette(colors.button, colors.window);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.alternate);
    palette.setColor(QPalette::ToolTipBase, colors.base);
    palette.setColor(QPalette::Mid, colors.mid);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Link, colors.highlight);
    palette.setColor(QPalette::PlaceholderText, colors.disabled);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, colors.text);
        palette.setColor(QPalette::Disabled, role, colors.disabled);
    }
    palette.setColor(QPalette::Highlight, colors.highlight);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, colors.elsewhere);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.mid);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QString lightName()
{
    return QStringLiteral("light");
}

QString darkName()
{
    return QStringLiteral("dark");
}

QString &appliedName()
{
    static QString name;
    return name;
}

} // namespace

bool applyAppearance(const QString &name)
{
    const bool isOwn = name == lightName() || name == darkName();
    if (isOwn)
        QApplication::setStyle(new WindowStyle);
    else if (!QApplication::setStyle(name))
        return false;
    if (isOwn)
        QApplication::setPalette(paletteOf(name == darkName() ? darkColors : lightColors));
    appliedName() = name;
    return true;
}

QString currentAppearance()
{
    return appliedName();
}

QStringList appearanceNames()
{
    QStringList names = QStyleFactory::keys();
    for (QString &name : names)
        name = name.toLower();
    return QStringList{lightName(), darkName()} + names;
}
