#include "refhost/workbench/run/RunSession.h"

#include "refhost/workbench/document/TaskDocument.h"

RunSession::RunSession(TaskDocument &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
}

int RunSession::nextStep() const
{
    return 0;
}

const StepRecord *RunSession::lastRecord(int step) const
{
    Q_UNUSED(step)
    return nullptr;
}

void RunSession::run() {}
void RunSession::stepOver() {}
void RunSession::runTo(int step)
{
    Q_UNUSED(step)
}
void RunSession::pause() {}
void RunSession::stop() {}
void RunSession::reset() {}

void RunSession::setValue(const QString &variable, const QVariant &value)
{
    Q_UNUSED(variable)
    Q_UNUSED(value)
}
