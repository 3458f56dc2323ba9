#pragma once

#include "refhost/workbench/files/Questions.h"

#include <QCoreApplication>
#include <QMessageBox>

/// Asks in dialogs over a window.
class DialogQuestions : public Questions
{
    Q_DECLARE_TR_FUNCTIONS(DialogQuestions)

public:
    /// The window has to outlive this object.
    explicit DialogQuestions(QWidget *window);

    Unsaved askUnsaved(const QString &name) override;
    QString chooseOpenFile(const QString &folder) override;
    SaveChoice chooseSaveFile(const QString &suggested, TaskForm form) override;
    Changed askChanged(const QString &path) override;
    Inexact askInexact(const Problem &problem) override;
    bool askReload(const QString &path) override;
    Lost askLost(const RecoveryOffer &offer) override;
    void tellUnreadable(const Problem &problem) override;
    void tellUnwritable(const Problem &problem) override;

private:
    struct Button
    {
        QString text;
        QMessageBox::ButtonRole role = QMessageBox::ActionRole;
    };

    /// Which of the buttons was pressed; the last stands for a dialog that was closed. Enter
    /// presses the first that destroys nothing.
    int ask(QMessageBox::Icon icon, const QString &text, const QString &more,
            const QList<Button> &buttons);

    QWidget *m_window;
};
