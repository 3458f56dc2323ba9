#include "refhost/workbench/run/RunActions.h"

#include "refhost/workbench/look/SymbolIcon.h"
#include "refhost/workbench/window/Workbench.h"

#include <algorithm>

RunActions::RunActions(Workbench &bench, QObject *parent)
    : QObject(parent)
    , m_bench(bench)
{
    createRunning();
    createBreakpoints();
    connect(&bench.run, &RunSession::stateChanged, this, &RunActions::update);
    connect(&bench.place, &CurrentPlace::stepChanged, this, &RunActions::update);
    connect(&bench.document, &TaskDocument::changed, this, &RunActions::update);
    update();
}

QAction *RunActions::add(const char *name, const QString &text, const QString &shortcut)
{
    auto *const action = new QAction(text, this);
    action->setObjectName(QLatin1String("run.") + QLatin1String(name));
    action->setShortcut(shortcut);
    m_actions.append(action);
    return action;
}

void RunActions::addSeparator()
{
    auto *const separator = new QAction(this);
    separator->setSeparator(true);
    m_actions.append(separator);
}

void RunActions::createRunning()
{
    RunSession &run = m_bench.run;
    m_run = add("run", tr("运行(&R)"), QStringLiteral("F5"));
    m_run->setIcon(symbolIcon(QStringLiteral("run")));
    connect(m_run, &QAction::triggered, this, [this] {
        if (m_bench.pending.commit())
            m_bench.run.run();
    });
    m_stepOver = add("stepOver", tr("单步(&S)"), QStringLiteral("F10"));
    m_stepOver->setIcon(symbolIcon(QStringLiteral("step-over")));
    connect(m_stepOver, &QAction::triggered, this, [this] {
        if (m_bench.pending.commit())
            m_bench.run.stepOver();
    });
    m_runTo = add("runTo", tr("运行到此处(&H)"), QStringLiteral("Ctrl+F10"));
    m_runTo->setIcon(symbolIcon(QStringLiteral("run-to")));
    connect(m_runTo, &QAction::triggered, this, [this] {
        if (m_bench.pending.commit())
            m_bench.run.runTo(m_bench.place.step());
    });
    m_pause = add("pause", tr("暂停(&P)"), QStringLiteral("F6"));
    m_pause->setIcon(symbolIcon(QStringLiteral("pause")));
    connect(m_pause, &QAction::triggered, &run, &RunSession::pause);
    m_stop = add("stop", tr("停止(&T)"), QStringLiteral("Shift+F5"));
    m_stop->setIcon(symbolIcon(QStringLiteral("stop")));
    connect(m_stop, &QAction::triggered, &run, &RunSession::stop);
    m_reset = add("reset", tr("重置(&E)"), QStringLiteral("Ctrl+Shift+F5"));
    m_reset->setIcon(symbolIcon(QStringLiteral("reset")));
    connect(m_reset, &QAction::triggered, &run, &RunSession::reset);
}

void RunActions::createBreakpoints()
{
    addSeparator();
    m_toggle = add("breakpoint", tr("切换断点(&B)"), QStringLiteral("F9"));
    m_toggle->setIcon(symbolIcon(QStringLiteral("breakpoint")));
    connect(m_toggle, &QAction::triggered, this, &RunActions::toggleBreakpoint);
    m_clear = add("clearBreakpoints", tr("清除所有断点(&C)"), QStringLiteral("Ctrl+Shift+F9"));
    m_clear->setIcon(symbolIcon(QStringLiteral("breakpoints-clear")));
    connect(m_clear, &QAction::triggered, this, &RunActions::clearBreakpoints);
}

void RunActions::update()
{
    const RunSession::State state = m_bench.run.state();
    const bool isRunning = state == RunSession::State::Running;
    const bool isPaused = state == RunSession::State::Paused;
    const bool canGoOn = isPaused || (!isRunning && !m_bench.document.state().steps.isEmpty());
    m_run->setText(isPaused ? tr("继续(&R)") : tr("运行(&R)"));
    m_run->setEnabled(canGoOn);
    m_stepOver->setEnabled(canGoOn);
    m_runTo->setEnabled(m_bench.run.canRunTo(m_bench.place.step()));
    m_pause->setEnabled(isRunning);
    m_stop->setEnabled(isRunning || isPaused);
    m_reset->setEnabled(state != RunSession::State::Ready);
    m_toggle->setEnabled(m_bench.place.step() != 0);
    m_clear->setEnabled(hasBreakpoints());
}

void RunActions::toggleBreakpoint()
{
    const TaskState &state = m_bench.document.state();
    const StepState *const step = state.step(m_bench.place.step());
    if (!step)
        return;
    const QString text = step->breakpoint ? tr("取消断点") : tr("设置断点");
    m_bench.document.change(text, state.withBreakpoint(step->id, !step->breakpoint),
                            {step->id, {}, 0});
}

void RunActions::clearBreakpoints()
{
    if (!hasBreakpoints())
        return;
    TaskState next = m_bench.document.state();
    for (StepState &step : next.steps)
        step.breakpoint = false;
    m_bench.document.change(tr("清除所有断点"), next, {m_bench.place.step(), {}, 0});
}

bool RunActions::hasBreakpoints() const
{
    const QVector<StepState> &steps = m_bench.document.state().steps;
    return std::any_of(steps.cbegin(), steps.cend(),
                       [](const StepState &step) { return step.breakpoint; });
}
