#include "refhost/workbench/window/PanelFocus.h"

#include <QAbstractItemView>
#include <QDockWidget>

namespace {

bool takesFocus(const QWidget &widget)
{
    return widget.isVisible() && widget.isEnabled() &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

/// The widget of the panel that the tabulator reaches first.
QWidget *firstOf(QWidget &panel)
{
    for (QWidget *next = panel.nextInFocusChain(); next && next != &panel;
         next = next->nextInFocusChain()) {
        if (panel.isAncestorOf(next) && takesFocus(*next))
            return next;
    }
    return nullptr;
}

QWidget *targetIn(QWidget &panel)
{
    QWidget *const proxy = panel.focusProxy();
    if (proxy && proxy->isVisible())
        return proxy;
    QWidget *const last = panel.focusWidget();
    return last && last != &panel && takesFocus(*last) ? last : firstOf(panel);
}

} // namespace

void showPanel(QWidget &panel)
{
    if (auto *const dock = qobject_cast<QDockWidget *>(panel.parentWidget())) {
        dock->show();
        dock->raise();
    }
}

void goToPanel(QWidget &panel)
{
    showPanel(panel);
    panel.activateWindow();
    QWidget *const target = targetIn(panel);
    if (!target)
        return;
    target->setFocus(Qt::ShortcutFocusReason);
    if (auto *const view = qobject_cast<QAbstractItemView *>(target))
        view->scrollTo(view->currentIndex());
}
