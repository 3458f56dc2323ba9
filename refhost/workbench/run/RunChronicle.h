#pragma once

#include "refhost/workbench/run/LogLine.h"
#include "refhost/workbench/run/RunSession.h"

#include <QObject>

/// Puts what happens in a run into lines of a log.
class RunChronicle : public QObject
{
    Q_OBJECT

public:
    /// The session has to outlive this object.
    explicit RunChronicle(const RunSession &run, QObject *parent = nullptr);

    /// The lines since the last call, oldest first.
    QVector<LogLine> takeLines();

Q_SIGNALS:
    /// There are lines to take; `atOnce` when the run halts with them.
    void written(bool atOnce);

private:
    void followState();
    void begin();
    void halt();
    void writeStep(const StepRecord &record);
    void writeEvent(const QString &text);
    QString haltText() const;
    QString totals() const;

    const RunSession &m_run;
    QVector<LogLine> m_lines;
    RunSession::State m_state;
    bool m_isUnderWay = false; ///< whether a run has begun and not ended
    int m_steps = 0;           ///< of this run
    int m_warnings = 0;
    qint64 m_nanoseconds = 0;
};
