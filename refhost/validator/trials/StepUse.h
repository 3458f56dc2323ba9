#pragma once

#include <QList>
#include <QString>

class Operation;
class Specimen;

/// One kind of call that a host makes on a step.
struct StepUse
{
    QString name; ///< the functions that are called, for details
    /// Calls them. What the step logs or throws is ignored, other checks tell of it.
    void (*call)(const Specimen &specimen, Operation &step);
};

/// Returns all kinds of calls. The first is `clone`, without which there is no step for the others.
const QList<StepUse> &stepUses();
