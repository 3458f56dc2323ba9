#include "refhost/workbench/document/LiveCheck.h"

#include "refhost/engine/check/TaskCheck.h"
#include "refhost/workbench/document/TaskDocument.h"
#include "refhost/workbench/library/PluginLibrary.h"

namespace {

constexpr int delayMilliseconds = 150;

} // namespace

LiveCheck::LiveCheck(const TaskDocument &document, const PluginLibrary &library, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_library(library)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(delayMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &LiveCheck::update);
    connect(&document, &TaskDocument::changed, &m_timer, qOverload<>(&QTimer::start));
    connect(&library, &PluginLibrary::reloaded, this, [this] {
        readFacts();
        m_timer.start();
    });
    readFacts();
}

void LiveCheck::readFacts()
{
    // A file that cannot be used leaves what the annotations tell.
    const Result<FactBook> book = FactBook::read(m_library.catalog());
    m_facts = book ? book.value() : FactBook();
}

void LiveCheck::update()
{
    m_timer.stop();
    const TaskState &state = m_document.state();
    m_steps.clear();
    for (const StepState &step : state.steps)
        m_steps.append(step.id);
    m_findings = checkTask(state.toTask(), m_library.catalog(), m_facts);
    m_findingsOfStep.clear();
    for (const Finding &finding : qAsConst(m_findings)) {
        if (finding.step >= 0)
            m_findingsOfStep[stepOf(finding)].append(finding);
    }
    Q_EMIT updated();
}
