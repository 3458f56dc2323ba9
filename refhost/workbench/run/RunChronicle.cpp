#include "refhost/workbench/run/RunChronicle.h"

#include "refhost/workbench/values/ValuePreview.h"
#include "refhost/workbench/values/VisibleText.h"

#include <QTime>

#include <utility>

namespace {

constexpr int mostUnits = 2000; ///< of a line: the values in it can be of any length

QString writesText(const StepRecord &record)
{
    QStringList texts;
    for (const WriteRecord &write : record.writes)
        texts.append(QStringLiteral("%1 = %2").arg(visibleText(write.variable, mostUnits),
                                                   valueLine(write.value)));
    return texts.join(QStringLiteral(", "));
}

LogLine lineOf(const StepRecord &record)
{
    LogLine line;
    line.step = record.step;
    line.number = record.row + 1;
    line.round = record.round;
    line.operation = record.operation;
    return line;
}

} // namespace

RunChronicle::RunChronicle(const RunSession &run, QObject *parent)
    : QObject(parent)
    , m_run(run)
    , m_state(run.state())
{
    connect(&run, &RunSession::stateChanged, this, &RunChronicle::followState);
    connect(&run, &RunSession::stepFinished, this, &RunChronicle::writeStep);
}

QVector<LogLine> RunChronicle::takeLines()
{
    return std::exchange(m_lines, {});
}

void RunChronicle::followState()
{
    const RunSession::State before = std::exchange(m_state, m_run.state());
    if (before == m_state)
        return;
    if (m_state == RunSession::State::Running)
        begin();
    else
        halt();
}

void RunChronicle::begin()
{
    if (std::exchange(m_isUnderWay, true))
        return;
    m_steps = 0;
    m_warnings = 0;
    m_nanoseconds = 0;
    writeEvent(tr("%1 运行开始").arg(QTime::currentTime().toString(Qt::ISODate)));
}

void RunChronicle::halt()
{
    m_isUnderWay = m_state == RunSession::State::Paused;
    if (m_state == RunSession::State::Ready)
        writeEvent(tr("已重置"));
    else if (!m_isUnderWay || m_run.lastHalt() != RunSession::Halt::Stepped)
        writeEvent(haltText());
    Q_EMIT written(true);
}

void RunChronicle::writeStep(const StepRecord &record)
{
    ++m_steps;
    m_warnings += record.warnings.size();
    m_nanoseconds += record.nanoseconds;
    LogLine line = lineOf(record);
    line.kind = LogLine::Kind::Step;
    line.text = visibleText(record.summary, mostUnits);
    line.writes = writesText(record);
    line.nanoseconds = record.nanoseconds;
    m_lines.append(line);
    for (int i = 0; i < record.warnings.size(); ++i) {
        LogLine below = lineOf(record);
        below.kind = LogLine::Kind::Warning;
        below.text = visibleText(record.warnings.at(i), mostUnits);
        below.warning = i;
        m_lines.append(below);
    }
    Q_EMIT written(false);
}

void RunChronicle::writeEvent(const QString &text)
{
    LogLine line;
    line.text = text;
    if (m_state == RunSession::State::Paused || m_state == RunSession::State::Finished)
        line.nanoseconds = m_nanoseconds;
    m_lines.append(line);
}

QString RunChronicle::haltText() const
{
    switch (m_run.lastHalt()) {
    case RunSession::Halt::Breakpoint:
        return tr("在断点处暂停：%1").arg(totals());
    case RunSession::Halt::Target:
        return tr("运行到此处：%1").arg(totals());
    case RunSession::Halt::End:
        return tr("运行结束：%1").arg(totals());
    case RunSession::Halt::Stopped:
        return tr("已停止：%1").arg(totals());
    default:
        return tr("已暂停：%1").arg(totals());
    }
}

QString RunChronicle::totals() const
{
    return tr("%1 个步骤，%2 条警告").arg(m_steps).arg(m_warnings);
}
