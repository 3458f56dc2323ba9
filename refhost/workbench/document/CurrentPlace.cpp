#include "refhost/workbench/document/CurrentPlace.h"

#include "refhost/workbench/document/TaskDocument.h"

CurrentPlace::CurrentPlace(const TaskDocument &document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    connect(&document, &TaskDocument::changed, this,
            [this](const TaskState &before) { followDocument(before.stepRow(m_step)); });
    connect(&document, &TaskDocument::placeWanted, this, &CurrentPlace::goTo);
}

void CurrentPlace::setStep(int step)
{
    const int known = m_document.state().step(step) ? step : 0;
    if (known == m_step)
        return;
    m_step = known;
    Q_EMIT stepChanged(m_step);
}

void CurrentPlace::goTo(const EditPlace &place)
{
    if (m_document.state().step(place.step))
        setStep(place.step);
    Q_EMIT wanted(place);
}

/// When the current step is gone, the one in its place becomes current.
void CurrentPlace::followDocument(int rowBefore)
{
    const QVector<StepState> &steps = m_document.state().steps;
    if (m_document.state().step(m_step))
        return;
    const int row = qBound(0, rowBefore, steps.size() - 1);
    setStep(steps.isEmpty() ? 0 : steps.at(row).id);
}
