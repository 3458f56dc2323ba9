#pragma once

#include "refhost/engine/Problem.h"
#include "refhost/workbench/files/TaskFile.h"

#include <QDateTime>
#include <QString>

#include <optional>

/// Where a task is to be saved; the path is empty when the user thought better of it.
struct SaveChoice
{
    QString path;
    TaskForm form = TaskForm::Json;
};

/// A task that was lost with its window and can be had back.
struct RecoveryOffer
{
    QString original;               ///< the file it belongs to, empty when it was never saved
    QDateTime time;                 ///< of the last change
    std::optional<Problem> problem; ///< why it cannot be had back as things are
};

/// Everything the work with files asks and tells the user. The window does it in dialogs.
class Questions
{
public:
    enum class Unsaved { Save, Discard, Cancel };
    enum class Changed { Overwrite, SaveElsewhere, Cancel };
    enum class Inexact { SavePacked, SaveJson, Cancel };
    enum class Lost { Restore, Discard, Later };

    Questions() = default;
    virtual ~Questions();

    /// What is to become of the changes to the task called `name`.
    virtual Unsaved askUnsaved(const QString &name) = 0;
    /// The file to open, empty for none; `folder` is where to begin.
    virtual QString chooseOpenFile(const QString &folder) = 0;
    /// Where to save; `suggested` is a path.
    virtual SaveChoice chooseSaveFile(const QString &suggested, TaskForm form) = 0;
    /// What to do about a file that someone else has changed since it was opened.
    virtual Changed askChanged(const QString &path) = 0;
    /// What to do about something that JSON cannot say.
    virtual Inexact askInexact(const Problem &problem) = 0;
    /// Whether to load a file again that someone else has changed.
    virtual bool askReload(const QString &path) = 0;
    /// What to do about a task that was lost with its window.
    virtual Lost askLost(const RecoveryOffer &offer) = 0;
    virtual void tellUnreadable(const Problem &problem) = 0;
    virtual void tellUnwritable(const Problem &problem) = 0;

private:
    Q_DISABLE_COPY_MOVE(Questions)
};
