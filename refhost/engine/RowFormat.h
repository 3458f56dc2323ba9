#pragma once

#include <QString>
#include <QStringList>

/// What the rows are that a task is run on, and what comes out of each.
struct RowFormat
{
    /// What becomes of the keys of a row that the task does not declare.
    enum class Extra {
        Refuse, ///< the row fails
        Ignore, ///< they are dropped
        Keep    ///< their members come out unchanged, behind the variables
    };

    QString lineVariable;     ///< takes the row as plain text; empty where rows are JSON objects
    QStringList printed;      ///< the variables that come out; empty for all
    bool plainText = false;   ///< the bare value of the one printed variable, instead of an object
    bool keepsFailed = false; ///< a row that failed leaves a line, too
    bool endsAtFailedStep = false; ///< a row ends, without output, at a step that throws
    Extra extra = Extra::Refuse;
};
