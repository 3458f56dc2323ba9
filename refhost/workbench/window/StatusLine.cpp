#include "refhost/workbench/window/StatusLine.h"

#include "refhost/workbench/window/Workbench.h"

#include <QLabel>

StatusLine::StatusLine(Workbench &bench, QWidget *parent)
    : QStatusBar(parent)
    , m_bench(bench)
    , m_run(new QLabel)
    , m_size(new QLabel)
    , m_findings(new QLabel)
{
    m_run->setObjectName(QStringLiteral("status.run"));
    const int gap = fontMetrics().averageCharWidth() * 2;
    for (QLabel *const label : {m_findings, m_size, m_run})
        label->setContentsMargins(gap, 0, gap, 0);
    addPermanentWidget(m_findings);
    addPermanentWidget(m_size);
    addPermanentWidget(m_run);
    connect(&bench.run, &RunSession::stateChanged, this, &StatusLine::follow);
    connect(&bench.document, &TaskDocument::changed, this, &StatusLine::follow);
    connect(&bench.check, &LiveCheck::updated, this, &StatusLine::follow);
    follow();
}

void StatusLine::tell(const QString &text)
{
    constexpr int milliseconds = 8000;
    showMessage(text, milliseconds);
}

void StatusLine::follow()
{
    const TaskState &state = m_bench.document.state();
    m_run->setText(runText());
    m_size->setText(tr("%1 个步骤，%2 个变量").arg(state.steps.size()).arg(state.variables.size()));
    m_findings->setText(findingsText());
}

QString StatusLine::runText() const
{
    switch (m_bench.run.state()) {
    case RunSession::State::Ready:
        break;
    case RunSession::State::Running:
        return tr("运行中");
    case RunSession::State::Paused:
        return tr("已暂停，下一步是第 %1 步")
            .arg(m_bench.document.state().stepRow(m_bench.run.nextStep()) + 1);
    case RunSession::State::Finished:
        return tr("运行结束");
    }
    return tr("就绪");
}

QString StatusLine::findingsText() const
{
    const int count = m_bench.check.findings().size();
    return count == 0 ? tr("检查：没有发现问题") : tr("检查：%1 处").arg(count);
}
