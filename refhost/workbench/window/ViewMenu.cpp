#include "refhost/workbench/window/ViewMenu.h"

#include "refhost/workbench/look/Appearance.h"
#include "refhost/workbench/look/Remembered.h"
#include "refhost/workbench/window/PanelFocus.h"

#include <QActionGroup>

ViewMenu::ViewMenu(QWidget *parent)
    : QMenu(tr("视图(&V)"), parent)
    , m_switchesEnd(addSeparator())
    , m_panels(addMenu(tr("转到面板(&G)")))
{
    addSeparator();
    addAppearances();
    addLanguages();
}

void ViewMenu::addSwitch(QAction *toggle)
{
    insertAction(m_switchesEnd, toggle);
}

void ViewMenu::addPanel(const QString &title, QWidget *panel)
{
    QAction *const action = m_panels->addAction(title, panel, [panel] { goToPanel(*panel); });
    const int number = m_panels->actions().size();
    action->setObjectName(QStringLiteral("view.panel%1").arg(number));
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(number)));
}

void ViewMenu::addAppearances()
{
    QMenu *const menu = addMenu(tr("外观(&A)"));
    auto *const group = new QActionGroup(menu);
    const auto add = [&](const QString &name, const QString &text) {
        QAction *const action = menu->addAction(text);
        action->setCheckable(true);
        action->setChecked(name == currentAppearance());
        group->addAction(action);
        connect(action, &QAction::triggered, this, [name] {
            applyAppearance(name);
            rememberAppearance(name);
        });
    };
    add(QStringLiteral("light"), tr("浅色(&L)"));
    add(QStringLiteral("dark"), tr("深色(&D)"));
}

void ViewMenu::addLanguages()
{
    // In their own words, so that everybody finds back; the note is for readers of either.
    QMenu *const menu = addMenu(QStringLiteral("语言 / &Language"));
    auto *const group = new QActionGroup(menu);
    const auto add = [&](const QString &name, const QString &text) {
        QAction *const action = menu->addAction(text);
        action->setCheckable(true);
        action->setChecked(name == rememberedLanguage());
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, name] {
            rememberLanguage(name);
            Q_EMIT languageChosen();
        });
    };
    add(QStringLiteral("zh"), QStringLiteral("中文(&Z)"));
    add(QStringLiteral("en"), QStringLiteral("&English"));
    menu->addSeparator();
    QAction *const note =
        menu->addAction(QStringLiteral("下次启动时生效 / Takes effect at the next start"));
    note->setObjectName(QStringLiteral("view.languageNote"));
    note->setEnabled(false);
}
