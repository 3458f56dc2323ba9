#include "refhost/workbench/files/FileActions.h"

#include "refhost/engine/FileBytes.h"
#include "refhost/workbench/files/DialogQuestions.h"
#include "refhost/workbench/files/FileDrop.h"
#include "refhost/workbench/files/Recovery.h"
#include "refhost/workbench/files/RecoveryFile.h"
#include "refhost/workbench/library/FileWatch.h"
#include "refhost/workbench/look/LabelText.h"
#include "refhost/workbench/look/ShownToolTip.h"
#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/window/Workbench.h"

#include "Operation.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QScopedValueRollback>
#include <QWidget>

FileActions::FileActions(Workbench &bench, QWidget *window)
    : QObject(window)
    , m_bench(bench)
    , m_window(window)
    , m_questions(std::make_unique<DialogQuestions>(window))
    , m_recovery(new Recovery(bench.document, bench.run, recoveryFolder(), this))
    , m_watch(new FileWatch(this))
{
    createActions();
    connect(new FileDrop(window), &FileDrop::dropped, this, &FileActions::open);
    connect(&bench.document, &TaskDocument::modifiedChanged, this, &FileActions::updateTitle);
    connect(m_watch, &FileWatch::stirred, this, &FileActions::noticeChange);
    connect(m_recovery, &Recovery::failed, this, [this](const Problem &problem) {
        Q_EMIT statusText(tr("无法备份未保存的修改：%1").arg(problem.toString()));
    });
    updateTitle();
}

FileActions::~FileActions() = default;

QAction *FileActions::addAction(const QString &name, const QString &icon, const QString &text,
                                const QKeySequence &shortcut)
{
    auto *const action = new QAction(symbolIcon(icon), text, this);
    action->setObjectName(QStringLiteral("files.") + name);
    action->setShortcut(shortcut);
    return action;
}

void FileActions::createActions()
{
    m_new = addAction(QStringLiteral("new"), QStringLiteral("new"), tr("新建(&N)"),
                      QKeySequence(int(Qt::CTRL) + Qt::Key_N));
    m_open = addAction(QStringLiteral("open"), QStringLiteral("open"), tr("打开(&O)…"),
                       QKeySequence(int(Qt::CTRL) + Qt::Key_O));
    m_save = addAction(QStringLiteral("save"), QStringLiteral("save"), tr("保存(&S)"),
                       QKeySequence(int(Qt::CTRL) + Qt::Key_S));
    m_saveAs = addAction(QStringLiteral("saveAs"), QStringLiteral("save-as"), tr("另存为(&A)…"),
                         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S));
    m_restore = addAction(QStringLiteral("restore"), QStringLiteral("reload"),
                          tr("恢复未保存的任务(&V)…"), {});
    m_quit = addAction(QStringLiteral("quit"), QStringLiteral("close"), tr("退出(&Q)"),
                       QKeySequence(int(Qt::CTRL) + Qt::Key_Q));
    m_quit->setMenuRole(QAction::QuitRole);
    connect(m_new, &QAction::triggered, this, &FileActions::startNew);
    connect(m_open, &QAction::triggered, this, &FileActions::chooseAndOpen);
    connect(m_save, &QAction::triggered, this, &FileActions::save);
    connect(m_saveAs, &QAction::triggered, this, [this] { saveAs(); });
    connect(m_restore, &QAction::triggered, this, [this] {
        if (RecoveryFile::allIn(m_recovery->folder()).empty())
            Q_EMIT statusText(tr("没有可以恢复的任务"));
        offerLost();
    });
    connect(m_quit, &QAction::triggered, m_window, &QWidget::close);
}

void FileActions::addTo(QMenu &menu)
{
    menu.addActions({m_new, m_open});
    m_recentMenu = menu.addMenu(symbolIcon(QStringLiteral("recent")), tr("最近的文件(&R)"));
    m_recentMenu->setObjectName(QStringLiteral("files.recent"));
    m_recentMenu->setToolTipsVisible(true);
    connect(m_recentMenu, &QMenu::aboutToShow, this, &FileActions::fillRecentMenu);
    menu.addSeparator();
    menu.addActions({m_save, m_saveAs});
    menu.addSeparator();
    menu.addAction(m_restore);
    menu.addSeparator();
    menu.addAction(m_quit);
}

void FileActions::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList files = m_recent.files();
    for (int i = 0; i < files.size(); ++i) {
        const QString &path = files.at(i);
        const QString shown = m_recentMenu->fontMetrics().elidedText(
            QDir::toNativeSeparators(path), Qt::ElideMiddle,
            60 * m_recentMenu->fontMetrics().averageCharWidth());
        // The tenth has the digit 0.
        QAction *const action = m_recentMenu->addAction(
            QStringLiteral("&%1  %2").arg((i + 1) % 10).arg(labelText(shown)));
        action->setToolTip(shownToolTip(QDir::toNativeSeparators(path)));
        action->setEnabled(QFileInfo(path).isFile());
        connect(action, &QAction::triggered, this, [this, path] { open(path); });
    }
    if (files.isEmpty())
        m_recentMenu->addAction(tr("（无）"))->setEnabled(false);
    m_recentMenu->addSeparator();
    QAction *const clear = m_recentMenu->addAction(tr("清除记录(&C)"));
    clear->setObjectName(QStringLiteral("files.clearRecent"));
    clear->setIcon(symbolIcon(QStringLiteral("delete")));
    clear->setEnabled(!files.isEmpty());
    connect(clear, &QAction::triggered, this, [this] { m_recent.clear(); });
}

void FileActions::setQuestions(std::unique_ptr<Questions> questions)
{
    m_questions = std::move(questions);
}

bool FileActions::mayLeave()
{
    if (!m_bench.pending.commit())
        return false;
    m_bench.document.endTyping();
    if (!m_bench.document.isModified())
        return true;
    const QScopedValueRollback<bool> asking(m_asking, true);
    switch (m_questions->askUnsaved(name())) {
    case Questions::Unsaved::Save:
        return save();
    case Questions::Unsaved::Discard:
        m_recovery->giveUp();
        return true;
    case Questions::Unsaved::Cancel:
        break;
    }
    return false;
}

bool FileActions::startNew()
{
    if (!mayLeave())
        return false;
    setFile({}, TaskForm::Json, {});
    m_bench.document.replace({});
    updateTitle();
    return true;
}

bool FileActions::chooseAndOpen()
{
    if (!mayLeave())
        return false;
    const QScopedValueRollback<bool> asking(m_asking, true);
    const QString path = m_questions->chooseOpenFile(folder());
    if (path.isEmpty())
        return false;
    const auto problem = load(path);
    if (problem)
        m_questions->tellUnreadable(*problem);
    else
        m_recent.add(m_path);
    return !problem;
}

bool FileActions::open(const QString &path)
{
    if (!mayLeave())
        return false;
    const auto problem = load(path);
    if (!problem) {
        m_recent.add(m_path);
        return true;
    }
    const QScopedValueRollback<bool> asking(m_asking, true);
    m_questions->tellUnreadable(*problem);
    return false;
}

std::optional<Problem> FileActions::load(const QString &path)
{
    // A relative name would lead elsewhere when the current folder changes.
    const QString file = path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
    Result<TaskFile> read = readTaskFile(file, m_bench.library.catalog());
    if (!read)
        return read.problem();
    TaskFile &content = read.value();
    setFile(file, content.form, content.stamp);
    m_bench.document.replace(TaskState::fromTask(std::move(content.task)));
    updateTitle();
    return std::nullopt;
}

bool FileActions::save()
{
    if (!m_bench.pending.commit())
        return false;
    if (m_path.isEmpty())
        return saveAs();
    const QByteArray present = stampOfFile(m_path);
    if (!present.isEmpty() && present != m_stamp) {
        const QScopedValueRollback<bool> asking(m_asking, true);
        switch (m_questions->askChanged(m_path)) {
        case Questions::Changed::Overwrite:
            break;
        case Questions::Changed::SaveElsewhere:
            return saveAs();
        case Questions::Changed::Cancel:
            return false;
        }
    }
    return saveTo(m_path, m_form);
}

bool FileActions::saveAs()
{
    if (!m_bench.pending.commit())
        return false;
    const QString suggested =
        m_path.isEmpty() ? QDir(folder()).filePath(name() + QLatin1Char('.') + suffixOf(m_form))
                         : m_path;
    return saveAs(suggested, m_form);
}

bool FileActions::saveAs(const QString &suggested, TaskForm form)
{
    const QScopedValueRollback<bool> asking(m_asking, true);
    const SaveChoice choice = m_questions->chooseSaveFile(suggested, form);
    return !choice.path.isEmpty() && saveTo(QFileInfo(choice.path).absoluteFilePath(), choice.form);
}

bool FileActions::saveTo(const QString &path, TaskForm form)
{
    m_bench.document.endTyping();
    const QScopedValueRollback<bool> asking(m_asking, true);
    const OperationCatalog &catalog = m_bench.library.catalog();
    const Task task = m_bench.document.state().toTask();
    const Result<QByteArray> bytes = taskBytes(task, form, catalog);
    if (bytes)
        return write(path, form, bytes.value());
    if (form == TaskForm::Packed) {
        m_questions->tellUnwritable(bytes.problem());
        return false;
    }
    switch (m_questions->askInexact(bytes.problem())) {
    case Questions::Inexact::SavePacked: {
        const QFileInfo info(path);
        const QString packed =
            info.completeBaseName() + QLatin1Char('.') + suffixOf(TaskForm::Packed);
        return saveAs(info.dir().filePath(packed), TaskForm::Packed);
    }
    case Questions::Inexact::SaveJson:
        return write(path, form, roughJson(task, catalog));
    case Questions::Inexact::Cancel:
        break;
    }
    return false;
}

bool FileActions::write(const QString &path, TaskForm form, const QByteArray &bytes)
{
    if (const auto problem = writeFileBytes(path, bytes)) {
        m_questions->tellUnwritable(*problem);
        return false;
    }
    setFile(path, form, stampOf(bytes));
    m_bench.document.markSaved();
    updateTitle();
    m_recent.add(path);
    Q_EMIT statusText(tr("已保存 %1").arg(name()));
    return true;
}

void FileActions::offerLost()
{
    std::vector<RecoveryFile> files = RecoveryFile::allIn(m_recovery->folder());
    const QScopedValueRollback<bool> asking(m_asking, true);
    for (RecoveryFile &file : files) {
        Result<Task> task = file.read(m_bench.library.catalog());
        RecoveryOffer offer{file.origin().path, file.time(), std::nullopt};
        if (!task)
            offer.problem = task.problem();
        const Questions::Lost answer = m_questions->askLost(offer);
        if (answer == Questions::Lost::Discard)
            file.remove();
        if (answer != Questions::Lost::Restore || !task)
            continue;
        // The window holds one task; what else was lost is offered the next time.
        if (restore(offer, std::move(task.value()), file.origin().form, file.origin().stamp))
            file.remove();
        return;
    }
}

/// Whether the task is back and safe: in the window, and in a recovery file of this window.
bool FileActions::restore(const RecoveryOffer &offer, Task task, TaskForm form,
                          const QByteArray &stamp)
{
    if (!mayLeave())
        return false;
    setFile(offer.original, form, stamp);
    m_bench.document.replace(TaskState::fromTask(std::move(task)), true);
    updateTitle();
    return m_recovery->flush();
}

void FileActions::setFile(const QString &path, TaskForm form, const QByteArray &stamp)
{
    m_path = path;
    m_form = form;
    m_stamp = stamp;
    m_declined.clear();
    m_watch->setFiles(path.isEmpty() ? QStringList() : QStringList{path});
    m_recovery->setOrigin({path, form, stamp});
}

void FileActions::updateTitle()
{
    // In the title of a window "[*]" is the mark of changes; a name has it twice.
    QString shown = name();
    shown.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
    m_window->setWindowFilePath(m_path);
    m_window->setWindowTitle(tr("%1[*] — 操作工作台").arg(shown));
    m_window->setWindowModified(m_bench.document.isModified());
}

/// Another program may have written the file. A task that is modified is asked about when it is
/// saved.
void FileActions::noticeChange()
{
    if (m_asking || m_path.isEmpty() || m_bench.document.isModified())
        return;
    const QByteArray present = stampOfFile(m_path);
    if (present.isEmpty() || present == m_stamp || present == m_declined)
        return;
    const QScopedValueRollback<bool> asking(m_asking, true);
    if (!m_questions->askReload(m_path)) {
        m_declined = present;
    } else if (const auto problem = load(m_path)) {
        m_declined = present;
        m_questions->tellUnreadable(*problem);
    }
}

QString FileActions::name() const
{
    return m_path.isEmpty() ? tr("未命名") : QFileInfo(m_path).fileName();
}

/// Where dialogs begin.
QString FileActions::folder() const
{
    const QString near = m_path.isEmpty() ? m_recent.files().value(0) : m_path;
    return near.isEmpty() ? QDir::homePath() : QFileInfo(near).absolutePath();
}
