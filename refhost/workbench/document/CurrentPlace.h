#pragma once

#include "refhost/workbench/document/EditPlace.h"

#include <QObject>

class TaskDocument;

/// Where the user is in the task. The panels follow it and move it: the list of steps sets the
/// step, the editor shows it, a click in the log goes to a field.
class CurrentPlace : public QObject
{
    Q_OBJECT

public:
    /// The document has to outlive this object.
    explicit CurrentPlace(const TaskDocument &document, QObject *parent = nullptr);

    /// The step the editor shows, 0 for none.
    int step() const { return m_step; }
    void setStep(int step);

    /// Goes to a place: makes its step current and asks the panels to show and focus the rest.
    void goTo(const EditPlace &place);

Q_SIGNALS:
    void stepChanged(int step);
    /// A place is to be shown, its field or variable focused. Its step is current already.
    void wanted(const EditPlace &place);

private:
    void followDocument(int rowBefore);

    const TaskDocument &m_document;
    int m_step = 0;
};
