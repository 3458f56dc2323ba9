#pragma once

#include "refhost/workbench/files/Questions.h"
#include "refhost/workbench/files/RecentFiles.h"
#include "refhost/workbench/files/TaskFile.h"

#include <QAction>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class FileWatch;
class QMenu;
class QWidget;
class Recovery;
struct Workbench;

/// New, open, save and what belongs to it, with the questions they ask. Shows the file in the title
/// of the window, takes files that are dropped on it, and keeps the task from being lost.
class FileActions : public QObject
{
    Q_OBJECT

public:
    /// The workbench has to outlive the actions; `window` is the parent of what is asked.
    FileActions(Workbench &bench, QWidget *window);
    ~FileActions() override;

    /// Fills the menu of the window.
    void addTo(QMenu &menu);

    /// The actions for a tool bar: new, open and save.
    QList<QAction *> mainActions() const { return {m_new, m_open, m_save}; }

    /// Lets something else ask and tell.
    void setQuestions(std::unique_ptr<Questions> questions);

    /// Whether the task may be left: it is saved, or the user has said what is to become of it.
    bool mayLeave();

    /// Opens a file, of either form, in place of the task, if that may be left. A failure is told
    /// in a message. Whether it is open now.
    bool open(const QString &path);

    /// Opens a file in place of the task, without asking, telling and remembering anything. After a
    /// problem all is as it was.
    std::optional<Problem> load(const QString &path);

    /// Each asks what it has to; whether it has been done.
    bool startNew();
    bool chooseAndOpen();
    bool save();
    bool saveAs();

    /// Offers the tasks that were lost with their windows.
    void offerLost();

    /// The file of the task, empty when it is in none.
    const QString &path() const { return m_path; }

    Recovery &recovery() { return *m_recovery; }

Q_SIGNALS:
    /// What has been done, or could not be done on the side, for the status bar.
    void statusText(const QString &text);

private:
    void createActions();
    QAction *addAction(const QString &name, const QString &icon, const QString &text,
                       const QKeySequence &shortcut);
    void fillRecentMenu();
    bool saveAs(const QString &suggested, TaskForm form);
    bool saveTo(const QString &path, TaskForm form);
    bool write(const QString &path, TaskForm form, const QByteArray &bytes);
    bool restore(const RecoveryOffer &offer, Task task, TaskForm form, const QByteArray &stamp);
    void setFile(const QString &path, TaskForm form, const QByteArray &stamp);
    void updateTitle();
    void noticeChange();
    QString name() const;
    QString folder() const;

    Workbench &m_bench;
    QWidget *m_window;
    std::unique_ptr<Questions> m_questions;
    RecentFiles m_recent;
    Recovery *m_recovery;
    FileWatch *m_watch;
    QMenu *m_recentMenu = nullptr;
    QAction *m_new = nullptr;
    QAction *m_open = nullptr;
    QAction *m_save = nullptr;
    QAction *m_saveAs = nullptr;
    QAction *m_restore = nullptr;
    QAction *m_quit = nullptr;
    QString m_path;
    TaskForm m_form = TaskForm::Json;
    QByteArray m_stamp;    ///< of the file as it was opened or saved last
    QByteArray m_declined; ///< of the file as the user did not want to load it
    bool m_asking = false;
};
