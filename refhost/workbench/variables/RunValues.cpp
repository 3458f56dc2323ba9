#include "refhost/workbench/variables/RunValues.h"

#include "refhost/workbench/run/RunSession.h"

RunValues::RunValues(RunSession &run, QObject *parent)
    : CurrentValues(parent)
    , m_run(run)
{
    connect(&run, &RunSession::stateChanged, this, &CurrentValues::changed);
    connect(&run, &RunSession::stepFinished, this, &CurrentValues::changed);
    connect(&run, &RunSession::valuesChanged, this, &CurrentValues::changed);
}

bool RunValues::areThere() const
{
    return m_run.state() != RunSession::State::Ready;
}

bool RunValues::mayChange() const
{
    return m_run.state() == RunSession::State::Paused ||
           m_run.state() == RunSession::State::Finished;
}

QVariant RunValues::value(const QString &variable) const
{
    return m_run.scope().get(variable);
}

QStringList RunValues::written() const
{
    QStringList names;
    if (!areThere() || m_run.records().isEmpty())
        return names;
    const QVector<WriteRecord> &writes = m_run.records().constLast().writes;
    for (const WriteRecord &write : writes)
        names.append(write.variable);
    return names;
}

void RunValues::set(const QString &variable, const QVariant &value)
{
    m_run.setValue(variable, value);
}
