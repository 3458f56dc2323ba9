#pragma once

#include <QString>
#include <QStringList>

/// A kind of mistake in a task.
enum class Mistake {
    UndeclaredVariable, ///< a name to read from that the task does not declare
    DottedName,         ///< "$a.b" where a variable is called "a.b"
    PathWithoutList,    ///< a member of something that is no list
    UnknownPath,        ///< a member that lists, or this one, do not have
    EmptyPath,          ///< a reference that ends in "."
    ReferenceType,      ///< a reference to a variable of a type that is not asked for
    NotANumber,         ///< a numeric operand that is none
    EmptyNumber,
    NumberAsText,    ///< a text that changes because it is parsed as a number
    TypedEscape,     ///< a typed "\n" where a line feed was meant
    TypedPattern,    ///< a regular expression or a wildcard where a text is searched for
    EmptySearch,     ///< no text to search for
    FullWidth,       ///< a full-width character where the half-width one was meant, or the reverse
    SpecialNumber,   ///< "nan" or "inf" where a number is asked for
    NumberBeyondInt, ///< a number that is too large for 32 bits where only these are kept
    MaybeNotFound,   ///< the position of a text, which may not have been found, used as a start
    LoneDollar,      ///< "$" alone
    DollarInText,    ///< "$name" amid a text
    MissingDollar,   ///< a text that is the name of a variable that no step reads
    NameWithDollar,  ///< "$name" where the bare name belongs
    UndeclaredResult,
    EmptyResult,
    ResultType,
    EmptyInput,
    InputType,
    UnknownMode,
    HiddenSetting,   ///< a setting that the editor does not show
    ReadsEmpty,      ///< a variable that is read and has no value ever
    ReadBeforeWrite, ///< by a step before the one that writes it, not by that one
    OverwrittenUnread,
    InputOverwritten, ///< by another value between two steps that read it
    UnusedVariable
};

/// How sure it is that something is wrong. What a step makes of it is known to the step alone.
enum class Severity {
    Error,   ///< what stands there is of no use: nothing can be found, read or written by it
    Warning, ///< it is of use, or left out, but probably not as it was meant
    Note     ///< worth a look
};

/// One likely mistake in a task: what stands where, what comes of it and what helps.
struct Finding
{
    Mistake mistake = Mistake::UndeclaredVariable;
    Severity severity = Severity::Error;
    int step = -1;       ///< place of the step, counted from 0; -1 for the task itself
    QString typeId;      ///< the step's, empty for the task
    QString property;    ///< of the step; for the task the variable
    QString text;        ///< the value of the property as it is written
    QString message;     ///< what is wrong, in one line
    QString consequence; ///< what will happen
    QString remedy;      ///< what to do
    QString meant;       ///< the variable that was probably meant, if one was

    /// Where it is, for instance "steps[2] text.append sourceText" or "variables.line".
    QString place() const;
};

/// The word for a kind of mistake, such as "undeclared-variable". It never changes.
QString mistakeId(Mistake mistake);

/// The words of all kinds, in their order.
QStringList mistakeIds();

/// "error", "warning" or "note".
QString severityName(Severity severity);
