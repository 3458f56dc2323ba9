#pragma once

#include <QProxyStyle>

/// The style of Qt for all platforms with two differences. A selection is only bright where the
/// focus is: of several lists side by side one sees which the keys go to. And check boxes have a
/// frame that can be seen in the dark.
class WindowStyle : public QProxyStyle
{
    Q_OBJECT

public:
    WindowStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};
