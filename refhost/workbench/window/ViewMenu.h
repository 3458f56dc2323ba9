#pragma once

#include <QMenu>

/// What the window shows: its panels, its look and its language. Look and language are remembered.
class ViewMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ViewMenu(QWidget *parent = nullptr);

    /// Puts the switch of a panel or tool bar before the rest.
    void addSwitch(QAction *toggle);
    /// Adds a way to go to the panel by the keyboard: Ctrl+1 for the first, and so on. The panel
    /// has to outlive the menu.
    void addPanel(const QString &title, QWidget *panel);

Q_SIGNALS:
    /// The language of the next window is another one.
    void languageChosen();

private:
    void addAppearances();
    void addLanguages();

    QAction *m_switchesEnd;
    QMenu *m_panels;
};
