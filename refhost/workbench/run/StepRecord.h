#pragma once

#include "refhost/engine/OperandTrace.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <memory>

class Operation;

/// A variable that a step has written, with the value it got.
struct WriteRecord
{
    QString variable;
    QVariant value;
};

/// What one step of a run did.
struct StepRecord
{
    int step = 0;  ///< its identifier
    int row = 0;   ///< where it stood when it ran, counted from 0
    int round = 0; ///< counts the steps of a run, from 1
    QString summary;
    std::shared_ptr<const Operation> operation; ///< the step as it was then
    QVector<OperandRecord> operands;
    QVector<WriteRecord> writes;
    QStringList warnings;
    qint64 nanoseconds = 0; ///< what the step itself took
    QDateTime time;         ///< when it began
};

Q_DECLARE_TYPEINFO(WriteRecord, Q_MOVABLE_TYPE);
Q_DECLARE_TYPEINFO(StepRecord, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(StepRecord)
