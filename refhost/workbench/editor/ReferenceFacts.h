#pragma once

#include "refhost/engine/OperandText.h"
#include "refhost/engine/Task.h"
#include "refhost/workbench/editor/Remark.h"

#include <QList>

#include <optional>

class TaskState;
struct PropertySchema;

/// What is known about a reference while a task is edited.
struct ReferenceFacts
{
    bool declared = false;
    TaskVariable variable;        ///< the one it names, if that is declared
    VarType type = VarType::None; ///< of what it finds; none when it finds nothing
    QVariant value;               ///< what it finds at the start of a run
};

ReferenceFacts referenceFacts(const OperandText &operand, const TaskState &state);

/// A reference to something that a task has, such as "$items.Count".
struct ReferenceChoice
{
    QString text;
    VarType type = VarType::None; ///< of what it finds
};

/// All of them: the variables in their order, lists and tables with their members. Variables whose
/// names cannot be written in a reference are left out.
QList<ReferenceChoice> referenceChoices(const TaskState &state);

/// What there is to say about any reference: that it finds nothing, or else what it finds.
Remark remarkOnReference(const OperandText &operand, const ReferenceFacts &facts);
