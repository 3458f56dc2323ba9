#pragma once

#include <QString>

#include <memory>

class Operation;

/// One line of the log.
struct LogLine
{
    enum class Kind {
        Event,  ///< the run began, halted, ended or was reset
        Step,   ///< a step has run
        Warning ///< a step logged this
    };

    Kind kind = Kind::Event;
    QString text;
    QString writes;  ///< what the step wrote, in brief
    int step = 0;    ///< its identifier
    int number = 0;  ///< its place in the task when it ran, counted from 1
    int round = 0;   ///< of the run
    int warning = 0; ///< its place among the warnings of the step, counted from 0
    qint64 nanoseconds = -1;
    std::shared_ptr<const Operation> operation; ///< the step as it was when it ran
};

Q_DECLARE_TYPEINFO(LogLine, Q_MOVABLE_TYPE);
