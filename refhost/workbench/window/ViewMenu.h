#pragma once

#include <QMenu>

/// What the window shows: its panels, its look and its language. Look and language are kept in the
/// settings.
class ViewMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ViewMenu(QWidget *parent = nullptr);

    /// Puts the switch of a panel or tool bar before the rest.
    void addPanel(QAction *toggle);

Q_SIGNALS:
    /// Another language is wanted; the window is to be made anew.
    void languageChosen(const QString &name);

private:
    void addAppearances();
    void addLanguages();

    QAction *m_panelsEnd;
};
