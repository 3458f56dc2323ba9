#pragma once

#include "refhost/workbench/files/Questions.h"

#include <QStringList>

/// What a test answers, and what it was asked and told.
struct QuestionScript
{
    Questions::Unsaved unsaved = Questions::Unsaved::Cancel;
    Questions::Changed changed = Questions::Changed::Cancel;
    Questions::Inexact inexact = Questions::Inexact::Cancel;
    Questions::Lost lost = Questions::Lost::Later;
    bool reload = false;
    QString openFile;
    SaveChoice saveFile;

    QStringList asked;           ///< a word for each question, in their order
    QStringList told;            ///< the problems
    QList<RecoveryOffer> offers; ///< the tasks that were offered

    /// What was asked since the last call.
    QStringList takeAsked() { return std::exchange(asked, {}); }
};

/// Answers by a script, which has to outlive it.
class ScriptedQuestions : public Questions
{
public:
    explicit ScriptedQuestions(QuestionScript &script)
        : m_script(script)
    {
    }

    Unsaved askUnsaved(const QString &name) override
    {
        m_script.asked.append("unsaved " + name);
        return m_script.unsaved;
    }
    QString chooseOpenFile(const QString &) override
    {
        m_script.asked.append("open");
        return m_script.openFile;
    }
    SaveChoice chooseSaveFile(const QString &suggested, TaskForm form) override
    {
        m_script.asked.append("save " + suggested.section('/', -1) +
                              (form == TaskForm::Packed ? " packed" : " json"));
        return m_script.saveFile;
    }
    Changed askChanged(const QString &) override
    {
        m_script.asked.append("changed");
        return m_script.changed;
    }
    Inexact askInexact(const Problem &problem) override
    {
        m_script.asked.append("inexact " + problem.place);
        return m_script.inexact;
    }
    bool askReload(const QString &) override
    {
        m_script.asked.append("reload");
        return m_script.reload;
    }
    Lost askLost(const RecoveryOffer &offer) override
    {
        m_script.asked.append("lost");
        m_script.offers.append(offer);
        return m_script.lost;
    }
    void tellUnreadable(const Problem &problem) override
    {
        m_script.told.append(problem.toString());
    }
    void tellUnwritable(const Problem &problem) override
    {
        m_script.told.append(problem.toString());
    }

private:
    QuestionScript &m_script;
};
