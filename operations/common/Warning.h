#pragma once

#include <QByteArray>
#include <QDebug>
#include <QString>

struct QMetaObject;

/// Logs `line` as one warning through Qt's message logger, or nothing when memory runs out on the
/// way there: `std::bad_alloc` is thrown then.
void logWarning(const QString &line);

/// Logs one warning of several items. They are separated by a space, a `QString` stands in double
/// quotes, a character literal (UTF-8) stands as it is.
template <typename... Items>
void warn(const Items &...items)
{
    // Not streamed into the logger itself, which would log the half of a line that memory ran out
    // in the middle of.
    QString line;
    (QDebug(&line) << ... << items);
    line.chop(1); // the space behind the last item
    logWarning(line);
}

/// How an operation signs its own lines: its class name less "Operation" in square brackets,
/// "[TextAppend]".
QByteArray warningTag(const QMetaObject &operationClass);

/// Logs that the operation knows no such mode: `what` is the operation's word for it.
void warnUnknownMode(const QMetaObject &operationClass, const char *what, int mode);
