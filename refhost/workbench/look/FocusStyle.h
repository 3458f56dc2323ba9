#pragma once

#include <QProxyStyle>

/// The style of Qt for all platforms, in which a selection is only bright where the focus is: of
/// several lists side by side one sees which the keys go to.
class FocusStyle : public QProxyStyle
{
    Q_OBJECT

public:
    FocusStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};
