#pragma once

#include "refhost/engine/FactBook.h"
#include "refhost/engine/check/Finding.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QTimer>

class PluginLibrary;
class TaskDocument;

/// Keeps the likely mistakes of a document at hand. They are looked for a moment after the last
/// change, so that typing is never held up.
class LiveCheck : public QObject
{
    Q_OBJECT

public:
    /// Both have to outlive this object.
    LiveCheck(const TaskDocument &document, const PluginLibrary &library,
              QObject *parent = nullptr);

    /// All findings, in the order of the steps, as of the last look.
    const QList<Finding> &findings() const { return m_findings; }

    /// Those of one step.
    QList<Finding> findingsOf(int step) const { return m_findingsOfStep.value(step); }

    /// The step a finding is about, 0 for one about the task.
    int stepOf(const Finding &finding) const { return m_steps.value(finding.step); }

    /// Looks now.
    void update();

Q_SIGNALS:
    void updated();

private:
    void readFacts();

    const TaskDocument &m_document;
    const PluginLibrary &m_library;
    FactBook m_facts; ///< of the plug-ins as they are loaded now
    QTimer m_timer;
    QList<Finding> m_findings;
    QHash<int, QList<Finding>> m_findingsOfStep;
    QVector<int> m_steps; ///< the identifiers of the steps that were looked at
};
