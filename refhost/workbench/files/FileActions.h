#pragma once

#include <QObject>
#include <QString>

class QMenu;
class QWidget;
struct Workbench;

/// New, open, save and what belongs to it, with the questions they ask.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// The workbench has to outlive the actions; `window` is the parent of what is asked.
    FileActions(Workbench &bench, QWidget *window);

    /// Fills the menu of the window.
    void addTo(QMenu &menu);

    /// Whether the task may be left: it is saved, or the user has said what is to become of it.
    bool mayLeave();

    /// Opens a file, of either form, in place of the task. A failure is told in a message.
    bool open(const QString &path);

private:
    Workbench &m_bench;
    QWidget *m_window;
};
